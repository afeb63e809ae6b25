#include "play/soak/Checks.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QJsonArray>

#include "pathbar/BreadcrumbModel.h"
#include "play/BarParts.h"
#include "play/Json.h"
#include "play/Session.h"
#include "play/State.h"
#include "play/soak/FreshStart.h"
#include "play/soak/Lines.h"
#include "play/soak/Watch.h"
#include "tracking/FinderObserver.h"

namespace play {

namespace {

using brindle::FinderWindowState;
using platform::CGRect;

constexpr double barHeight = 44;
constexpr double leastApart = 0.5;  // nearer bars are left where they are
constexpr std::size_t mostCachedBeyondScreen = 128;

struct Rest {
    Session& session;
    const Watch& watch;
    const desk::Application& application;
    const brindle::FinderObserver& observer;
    const brindle::FinderOverlayCoordinator::Controllers& bars;
};

std::string jsonOf(const CGRect& frame) {
    return toText(QJsonArray{frame.origin.x, frame.origin.y, frame.size.width, frame.size.height});
}

std::string jsonOf(const std::string& text) {
    return toText(jsonText(std::string_view(text)));
}

std::string jsonOf(bool flag) {
    return flag ? "true" : "false";
}

std::string pointer(const char* list, std::size_t index, const char* field) {
    return std::string("expect /") + list + '/' + numberWord(static_cast<std::int64_t>(index)) + '/' + field + ' ';
}

// Where the state lists that panel.
std::size_t indexOfPanel(const Session& session, std::int64_t number) {
    std::size_t index = 0;
    for (const auto* window : session.machine.windows.all()) {
        if (window->number == number) break;
        if (barOfPanel(session, window->number)) ++index;
    }
    return index;
}

// A field of a published window: its name, and what an `expect` says of it.
struct Field {
    const char* name;
    std::string (*json)(const FinderWindowState& state);
};
constexpr Field fields[] = {
    {"id", [](const FinderWindowState& state) { return jsonOf(state.id); }},
    {"windowNumber", [](const FinderWindowState& state) { return numberWord(state.windowNumber); }},
    {"zIndex", [](const FinderWindowState& state) { return numberWord(state.zIndex); }},
    {"path", [](const FinderWindowState& state) { return jsonOf(state.path); }},
    {"displayName", [](const FinderWindowState& state) { return jsonOf(state.displayName); }},
    {"selectedFilePath",
     [](const FinderWindowState& state) { return state.selectedFilePath ? jsonOf(*state.selectedFilePath) : "null"; }},
    {"frame", [](const FinderWindowState& state) { return jsonOf(state.frame); }},
    {"isActive", [](const FinderWindowState& state) { return jsonOf(state.isActive); }},
    {"isFullScreen", [](const FinderWindowState& state) { return jsonOf(state.isFullScreen); }}};

// Finder tells the selection of its first window alone; that of another one stays as it was last known.
bool isComparable(const Field& field, std::size_t index) {
    return index == 0 || std::string_view(field.name) != "selectedFilePath";
}

std::optional<Finding> checkPublished(const Rest& rest) {
    const auto fresh = publishedByFreshStart(rest.session);
    const auto& published = rest.observer.windows.get();
    const std::size_t shared = std::min(fresh.size(), published.size());
    for (std::size_t i = 0; i < shared; ++i)
        for (const Field& field : fields) {
            const std::string wanted = field.json(fresh[i]);
            if (!isComparable(field, i) || field.json(published[i]) == wanted) continue;
            return Finding{"published",
                           "the " + std::string(field.name) + " of " + published[i].id +
                               " isn't what a fresh start publishes",
                           {pointer("observer/windows", i, field.name) + wanted}};
        }
    if (fresh.size() > shared)
        return Finding{"published",
                       fresh[shared].id + " isn't published, and would be after a fresh start",
                       {pointer("observer/windows", shared, "id") + jsonOf(fresh[shared].id)}};
    if (published.size() > shared)
        return Finding{"published",
                       published[shared].id + " is published, and wouldn't be after a fresh start",
                       {"expect-missing /observer/windows/" + numberWord(static_cast<std::int64_t>(shared))}};
    return std::nullopt;
}

std::optional<Finding> checkBars(const Rest& rest) {
    const auto& published = rest.observer.windows.get();
    const std::string last = numberWord(static_cast<std::int64_t>(published.size()));
    for (const FinderWindowState& state : published) {
        const auto bar = rest.bars.find(state.id);
        if (bar == rest.bars.end()) return Finding{"bars", "no bar of " + state.id, {"expect /panels/" + last + " {}"}};
        const auto* shown = rest.session.machine.windows.find(bar->second->panel->windowNumber());
        if (shown == nullptr || !rest.session.machine.windows.isOnScreen(*shown)) {
            const std::size_t index = indexOfPanel(rest.session, bar->second->panel->windowNumber());
            return Finding{
                "bars", "the bar of " + state.id + " isn't on screen", {pointer("panels", index, "visible") + "true"}};
        }
    }
    if (rest.bars.size() != published.size())
        return Finding{"bars", "a bar without a published window", {"expect-missing /panels/" + last}};
    if (rest.application.windows().size() != published.size())
        return Finding{"bars", "panels of windows that have gone are kept", {}};
    return std::nullopt;
}

CGRect placeOfBar(const CGRect& window, bool isFullScreen) {
    return {{window.minX(), isFullScreen ? window.minY() : window.maxY()}, {window.width(), barHeight}};
}

bool areTogether(const CGRect& a, const CGRect& b) {
    return std::abs(a.minX() - b.minX()) < leastApart && std::abs(a.minY() - b.minY()) < leastApart &&
           std::abs(a.width() - b.width()) < leastApart && std::abs(a.height() - b.height()) < leastApart;
}

std::optional<Finding> checkPlaces(const Rest& rest) {
    for (const FinderWindowState& state : rest.observer.windows.get()) {
        const auto* window = rest.session.machine.windows.find(state.windowNumber);
        const auto& panel = *rest.bars.find(state.id)->second->panel;
        if (window == nullptr) continue;
        const CGRect place = placeOfBar(window->frame, state.isFullScreen);
        if (areTogether(panel.frame(), place) || rest.watch.mayStandApart(state.id)) continue;
        const std::size_t index = indexOfPanel(rest.session, panel.windowNumber());
        return Finding{"places",
                       "the bar of " + state.id + " isn't at its window",
                       {pointer("panels", index, "frame") + jsonOf(place)}};
    }
    return std::nullopt;
}

std::optional<Finding> checkLevels(const Rest& rest) {
    const auto& active = rest.observer.activeWindow.get();
    for (const auto& [id, bar] : rest.bars) {
        const bool isActive = rest.observer.finderIsFrontmost.get() && active && active->id == id;
        const int level = isActive ? 3 : 0;
        if (bar->panel->level() == level) continue;
        const std::size_t index = indexOfPanel(rest.session, bar->panel->windowNumber());
        return Finding{"levels",
                       "the bar of " + id + " is at level " + numberWord(bar->panel->level()),
                       {pointer("panels", index, "level") + numberWord(level)}};
    }
    return std::nullopt;
}

// The whole order with the bar put where it belongs.
std::string stackingWith(const Rest& rest, const std::string& id) {
    QJsonArray names;
    const auto append = [&](const std::string& name) { names.append(jsonText(std::string_view(name))); };
    const std::int64_t window = *rest.bars.at(id)->parentWindowNumber;
    for (const auto* shown : rest.session.machine.windows.onScreen()) {
        if (barOfPanel(rest.session, shown->number) == id) continue;
        if (shown->number == window) append("panel " + id);
        append(nameInStacking(rest.session, *shown));
    }
    return toText(names);
}

std::optional<Finding> checkOrder(const Rest& rest) {
    for (const std::string& id : barsOutOfOrder(rest.session)) {
        if (rest.watch.mayStandOutOfOrder(id)) continue;
        return Finding{"order",
                       "the bar of " + id + " isn't immediately above its window",
                       {"expect /stacking " + stackingWith(rest, id)}};
    }
    return std::nullopt;
}

std::optional<Finding> checkCrumbs(const Rest& rest) {
    for (const FinderWindowState& state : rest.observer.windows.get()) {
        if (rest.bars.at(state.id)->viewModel->isEditing.get()) continue;
        const auto drawn = drawnCrumbIds(rest.session, rest.bars.at(state.id)->panel->windowNumber());
        const auto items = brindle::breadcrumbItems(state);
        const bool fits = drawn.size() <= items.size() && !drawn.empty();
        const auto isSame = [](const std::string& crumb, const brindle::BreadcrumbItem& item) {
            return crumb == item.id;
        };
        if (fits && std::equal(drawn.rbegin(), drawn.rend(), items.rbegin(), isSame)) continue;
        return Finding{"crumbs", "the crumbs of " + state.id + " aren't the end of its path", {}};
    }
    return std::nullopt;
}

std::optional<Finding> checkFrontmost(const Rest& rest) {
    const desk::Process* frontmost = rest.session.machine.processes.frontmost();
    const bool isFinder = frontmost != nullptr && frontmost->processIdentifier == rest.session.machine.finder.pid();
    if (rest.observer.finderIsFrontmost.get() == isFinder) return std::nullopt;
    return Finding{"frontmost",
                   "the observer takes another application for the frontmost one",
                   {"expect /observer/finderIsFrontmost " + jsonOf(isFinder)}};
}

std::optional<Finding> checkTracking(const Rest& rest) {
    if (rest.observer.liveGeometryState() == brindle::FinderObserver::LiveGeometryState::idle) return std::nullopt;
    return Finding{"tracking", "a window is still being followed", {"expect /observer/tracking \"idle\""}};
}

// What is registered doesn't depend on what happened before.
std::optional<Finding> checkRegistrations(const Rest& rest) {
    constexpr std::size_t globalMonitors = 3;
    constexpr std::size_t localMonitors = 1;
    constexpr std::size_t workspaceObservers = 2;
    constexpr std::size_t timers = 1;
    const auto registered = rest.application.registrations();
    if (registered.globalMonitors != globalMonitors || registered.localMonitors != localMonitors ||
        registered.workspaceObservers != workspaceObservers || registered.timers != timers)
        return Finding{"registrations",
                       numberWord(static_cast<std::int64_t>(registered.globalMonitors)) + " global monitors, " +
                           numberWord(static_cast<std::int64_t>(registered.localMonitors)) + " local ones, " +
                           numberWord(static_cast<std::int64_t>(registered.workspaceObservers)) + " observers and " +
                           numberWord(static_cast<std::int64_t>(registered.timers)) + " timers",
                       {}};
    return std::nullopt;
}

// Two of the application's and six of each window's, of the Finder that ran at the start. Those of windows of other spaces at the time went with the last rebuilding.
std::optional<Finding> checkSubscriptions(const Rest& rest) {
    constexpr std::size_t ofWindow = 6;
    const std::size_t subscriptions = rest.application.registrations().accessibilitySubscriptions;
    if (subscriptions == 0 || subscriptions % ofWindow == 2) return std::nullopt;
    return Finding{"subscriptions", numberWord(static_cast<std::int64_t>(subscriptions)) + " subscriptions", {}};
}

std::optional<Finding> checkCache(const Rest& rest) {
    const std::size_t cached = rest.observer.cachedWindowCount();
    if (cached <= mostCachedBeyondScreen + rest.observer.windows.get().size()) return std::nullopt;
    return Finding{"cache", numberWord(static_cast<std::int64_t>(cached)) + " window states are kept", {}};
}

constexpr std::array checks = {checkFrontmost,     checkTracking,      checkPublished, checkBars,
                               checkPlaces,        checkLevels,        checkOrder,     checkCrumbs,
                               checkRegistrations, checkSubscriptions, checkCache};

}  // namespace

std::optional<Finding> checkAtRest(Session& session, const Watch& watch) {
    const auto* orvane = session.orvane();
    const auto* coordinator = orvane == nullptr ? nullptr : orvane->appDelegate.coordinator();
    if (coordinator == nullptr) return std::nullopt;
    if (session.application()->isOnStack()) return Finding{"hanging", "the application is still waiting", {}};
    const Rest rest{session, watch, *session.application(), orvane->appDelegate.finderObserver(),
                    coordinator->liveControllers()};
    for (const auto check : checks)
        if (auto finding = check(rest)) return finding;
    return std::nullopt;
}

}  // namespace play
