#include "play/live/Inspector.h"

#include <algorithm>
#include <cstdio>

#include "play/Session.h"
#include "play/live/LiveCounters.h"
#include "views/LaidOutView.h"
#include "views/Views.h"

namespace play {

namespace {

using platform::CGRect;
using platform::CGRectMake;
using platform::Color;

constexpr std::int64_t inspectorId = -10;
constexpr int beatInMilliseconds = 250;
constexpr platform::Font font{11, platform::FontWeight::regular};
constexpr double width = 560;
constexpr double lineHeight = 15;
constexpr double inset = 10;
constexpr double margin = 12;
constexpr std::size_t scriptsShown = 5;

template <typename... Values>
std::string print(const char* format, Values... values) {
    char text[400];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

const char* nameOf(brindle::FinderObserver::LiveGeometryState state) {
    constexpr const char* names[] = {"idle", "waiting", "predicting"};
    return names[static_cast<int>(state)];
}

std::string windowLine(const brindle::FinderWindowState& state) {
    const platform::CGRect& frame = state.frame;
    return print("  %lld%s%s  %.0f %.0f %.0f %.0f  %s", static_cast<long long>(state.windowNumber),
                 state.isActive ? " active" : "", state.isFullScreen ? " full screen" : "", frame.minX(), frame.minY(),
                 frame.width(), frame.height(), state.path.substr(0, 200).c_str());
}

// The text of a script on one line, without what all begin with.
std::string gist(std::string_view source) {
    constexpr std::string_view opening = "tell application \"Finder\"";
    if (source.starts_with(opening)) source.remove_prefix(opening.size());
    std::string line;
    for (const char character : source) {
        const bool isBlank = character == ' ' || character == '\n';
        if (!isBlank) line += character;
        if (isBlank && !line.empty() && line.back() != ' ') line += ' ';
    }
    return line;
}

std::string scriptLine(const desk::SentScript& script, platform::Date now) {
    const std::string took = script.took ? print("%.0f ms", platform::inSeconds(*script.took) * 1000) : "waiting";
    return print("  %.1f s ago, %s%s%s, %zu bytes: %s", platform::inSeconds(now - script.sent), took.c_str(),
                 script.error.empty() ? "" : ", ", script.error.substr(0, 80).c_str(), script.source.size(),
                 gist(script.source).substr(0, 90).c_str());
}

}  // namespace

Inspector::Inspector(Session& theSession, LiveCounters& theCounters) : session(theSession), counters(theCounters) {
    beat.setInterval(beatInMilliseconds);
    QObject::connect(&beat, &QTimer::timeout, &beat, [this] {
        if (due) due();
    });
}

void Inspector::toggle() {
    if (beat.isActive())
        beat.stop();
    else
        beat.start();
}

std::vector<std::string> Inspector::lines() {
    const auto* orvane = session.orvane();
    if (orvane == nullptr) return {"The application isn't running."};
    const desk::Machine& machine = session.machine;
    const auto& observer = orvane->appDelegate.finderObserver();
    const LiveCounters::Counts lately = counters.lately();
    std::vector<std::string> lines;
    const auto& windows = observer.windows.get();
    lines.push_back(print("%zu published windows, tracking %s", windows.size(), nameOf(observer.liveGeometryState())));
    for (const auto& state : windows) lines.push_back(windowLine(state));
    lines.push_back(
        print("in the last second: %lld passes, %lld fetches, %lld layouts, %lld bars painted, %lld pictures",
              static_cast<long long>(lately.passes), static_cast<long long>(lately.fetches),
              static_cast<long long>(lately.layouts), static_cast<long long>(lately.barPaints),
              static_cast<long long>(lately.pictures)));
    lines.push_back(print("bars off their windows by %.2f points in the last picture", counters.distance()));
    lines.emplace_back("last scripts to Finder:");
    const auto& scripts = machine.scripting.sentScripts();
    for (std::size_t i = 0; i < std::min(scriptsShown, scripts.size()); ++i)
        lines.push_back(scriptLine(scripts[scripts.size() - 1 - i], machine.scheduler.now()));
    return lines;
}

std::vector<desk::Layer> Inspector::layers() {
    const auto screen = session.machine.displays.mainScreen();
    if (!beat.isActive() || !screen) return {};
    const std::vector<std::string> text = lines();
    const double height = static_cast<double>(text.size()) * lineHeight + 2 * inset;
    const CGRect& room = screen->visibleFrame;
    views::View page = views::VStack({.spacing = 0});
    for (const std::string& line : text)
        page.addChildren(views::HStack({}, views::Text(line), views::Spacer(0)).frame({.height = lineHeight}));
    page = std::move(page)
               .font(font)
               .foregroundStyle(Color::hex(0xD8E4D8))
               .lineLimit(1)
               .padding(inset)
               .background(views::RoundedRectangle(8).fill(Color::hex(0x101418, 0.88)));
    desk::Layer layer;
    layer.id = inspectorId;
    layer.frame = CGRectMake(room.maxX() - width - margin, room.minY() + margin, width, height);
    layer.background = std::make_shared<platform::Drawing>(
        views::LaidOutView(std::move(page), layer.frame.size, session.machine.text).drawing());
    return {layer};
}

}  // namespace play
