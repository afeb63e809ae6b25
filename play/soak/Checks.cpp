#include "play/soak/Checks.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QJsonArray>

#include "pathbar/BreadcrumbModel.h"
#include "play/BarParts.h"
#include "play/DeskState.h"
#include "play/Json.h"
#include "play/Session.h"
#include "play/soak/Expectations.h"
#include "play/soak/Leeway.h"
#include "play/soak/Lines.h"
#include "play/soak/PublishedCheck.h"
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
    const Leeway& leeway;
    const desk::LaunchedApplication& application;
    const brindle::FinderObserver& observer;
    const brindle::FinderOverlayCoordinator::Controllers& bars;
};

std::optional<Finding> checkBars(const Rest& rest) {
    const auto& published = rest.observer.windows.get();
    const std::string last = numberWord(static_cast<std::int64_t>(published.size()));
    for (const FinderWindowState& state : published) {
        const auto bar = rest.bars.find(state.id);
        if (bar == rest.bars.end()) return Finding{"bars", "no bar of " + state.id, {"expect /panels/" + last + " {}"}};
        const auto* shown = rest.session.machine.windows.find(bar->second->panel->windowNumber());
        const bool isOnScreen = shown != nullptr && rest.session.machine.windows.isOnScreen(*shown);
        if (!isOnScreen && !rest.leeway.mayBeElsewhere(state.id)) {
            const std::size_t index = indexOfPanel(rest.session, bar->second->panel->windowNumber());
            return Finding{"bars",
                           "the bar of " + state.id + " isn't on screen",
                           {expectField("panels", index, "visible") + "true"}};
        }
    }
    if (rest.bars.size() != published.size())
        return Finding{"bars", "a bar without a published window", {"expect-missing /panels/" + last}};
    const auto& own = rest.application.windows();
    const auto panels = static_cast<std::size_t>(
        std::count_if(own.begin(), own.end(), [](const auto& entry) { return entry.second->settings().isPanel; }));
    if (panels != published.size()) return Finding{"bars", "panels of windows that have gone are kept", {}};
    // The guide, the settings and the about window, each built once.
    if (own.size() > panels + 3) return Finding{"about", "a window was built twice", {}};
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
        const auto* shown = rest.session.machine.windows.find(panel.windowNumber());
        if (window == nullptr || shown == nullptr) continue;
        const CGRect place = placeOfBar(window->frame, state.isFullScreen);
        if (areTogether(shown->frame, place) || rest.leeway.mayStandApart(state.id)) continue;
        const std::size_t index = indexOfPanel(rest.session, panel.windowNumber());
        return Finding{"places",
                       "the bar of " + state.id + " isn't at its window",
                       {expectField("panels", index, "frame") + jsonOf(place)}};
    }
    return std::nullopt;
}

std::optional<Finding> checkLevels(const Rest& rest) {
    const auto& active = rest.observer.activeWindow.get();
    for (const auto& [id, bar] : rest.bars) {
        const bool isActive = rest.observer.finderIsFrontmost.get() && active && active->id == id;
        const int level = isActive ? 3 : 0;
        const auto* shown = rest.session.machine.windows.find(bar->panel->windowNumber());
        if (shown != nullptr && shown->level == level) continue;
        const std::size_t index = indexOfPanel(rest.session, bar->panel->windowNumber());
        return Finding{"levels",
                       "the bar of " + id + " isn't at level " + numberWord(level),
                       {expectField("panels", index, "level") + numberWord(level)}};
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
        if (rest.leeway.mayStandOutOfOrder(id)) continue;
        return Finding{"order",
                       "the bar of " + id + " isn't immediately above its window",
                       {"expect /stacking " + stackingWith(rest, id)}};
    }
    return std::nullopt;
}

// What a bar shows and what it would edit, even while its path field is open.
std::optional<Finding> checkShown(const Rest& rest) {
    for (const FinderWindowState& state : rest.observer.windows.get()) {
        const auto& shown = rest.bars.at(state.id)->viewModel->windowState.get();
        if (shown && shown->id == state.id && shown->path == state.path && shown->displayName == state.displayName &&
            shown->selectedFilePath == state.selectedFilePath)
            continue;
        return Finding{"shown", "the bar of " + state.id + " shows another folder or selection", {}};
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
    constexpr std::size_t timers = 2;  // the poll and the daily check for updates
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

std::optional<Finding> checkAgainstFreshStart(const Rest& rest) {
    return checkPublished(rest.session, rest.observer.windows.get());
}

constexpr std::array checks = {
    checkFrontmost, checkTracking, checkAgainstFreshStart, checkBars,          checkPlaces, checkLevels, checkOrder,
    checkShown,     checkCrumbs,   checkRegistrations,     checkSubscriptions, checkCache};

}  // namespace

std::optional<Finding> checkAtRest(Session& session, const Leeway& leeway) {
    const auto* orvane = session.orvane();
    const auto* coordinator = orvane == nullptr ? nullptr : orvane->appDelegate.coordinator();
    if (coordinator == nullptr) return std::nullopt;
    if (session.application()->isOnStack()) return Finding{"hanging", "the application is still waiting", {}};
    const Rest rest{session, leeway, *session.application(), orvane->appDelegate.finderObserver(),
                    coordinator->liveControllers()};
    for (const auto check : checks)
        if (auto finding = check(rest)) return finding;
    return std::nullopt;
}

}  // namespace play
