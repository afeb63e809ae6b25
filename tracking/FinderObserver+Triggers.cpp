// What sets the observer's passes off: workspace notifications, a slow timer, Accessibility events, the keyboard, and input anywhere.
#include <utility>

#include "tracking/FinderObserver.h"

namespace brindle {

using platform::NSEvent;
using platform::NSEventType;
using platform::WorkspaceNotification;

namespace {

constexpr platform::Duration pollTimerPeriod = std::chrono::milliseconds(500);
constexpr platform::Duration pollIntervalFinderFrontmost = std::chrono::seconds(1);
constexpr platform::Duration pollIntervalFinderNotFrontmost = std::chrono::seconds(3);
constexpr platform::Duration inputRefreshDelay = std::chrono::milliseconds(15);

constexpr platform::NSEventMask keyboardMonitorMask = maskOf(NSEventType::keyDown);
constexpr platform::NSEventMask inputMonitorMask =
    maskOf(NSEventType::leftMouseDown) | maskOf(NSEventType::leftMouseUp) | maskOf(NSEventType::rightMouseUp) |
    maskOf(NSEventType::leftMouseDragged) | maskOf(NSEventType::keyUp);
static_assert(keyboardMonitorMask == 1024 && inputMonitorMask == 2134);

}  // namespace

void FinderObserver::start() {
    stop();
    tally.starts += 1;
    accessibilityManager->refresh();
    windowEventMonitor().start();
    registerWorkspaceObservers();
    timer = platform.runLoop.addTimer(pollTimerPeriod, true, platform::Duration(0), lifetime.guard([this] {
        platform.dispatch.mainTask(lifetime.guard([this] { pollIfNeeded(); }));
    }));
    registerKeyboardMonitors();
    refresh(true);
}

void FinderObserver::stop() {
    if (timer) timer->invalidate();
    timer.reset();
    windowEventMonitor().stop();
    for (platform::Token& token : workspaceObservers) token.clear();
    workspaceObservers.clear();
    globalMonitor.clear();
    localMonitor.clear();
    finderInputMonitor.clear();
    stopLiveGeometryTracking();
    if (pendingInputRefresh) pendingInputRefresh->cancel();
    pendingInputRefresh.reset();
}

void FinderObserver::registerWorkspaceObservers() {
    workspaceObservers.clear();
    const auto observe = [this](WorkspaceNotification notification, void (FinderObserver::*respond)()) {
        workspaceObservers.push_back(platform.workspace.addObserver(notification, lifetime.guard([this, respond] {
            platform.dispatch.mainTask(lifetime.guard([this, respond] { (this->*respond)(); }));
        })));
    };
    observe(WorkspaceNotification::didActivateApplication, &FinderObserver::applicationDidActivate);
    observe(WorkspaceNotification::activeSpaceDidChange, &FinderObserver::activeSpaceDidChange);
}

void FinderObserver::applicationDidActivate() {
    refresh(true);
}

void FinderObserver::activeSpaceDidChange() {
    refresh(true);
    // The window list may still be that of the old space.
    platform.dispatch.mainAsync(lifetime.guard([this] { refresh(true); }));
}

void FinderObserver::registerKeyboardMonitors() {
    globalMonitor = platform.events.addGlobalMonitorForEventsMatchingMask(
        keyboardMonitorMask, lifetime.guard([this](const NSEvent& event) {
            platform.dispatch.mainTask(lifetime.guard([this, event] { handle(event); }));
        }));
    // The event is handed on even when the observer is gone.
    localMonitor = platform.events.addLocalMonitorForEventsMatchingMask(
        keyboardMonitorMask, [handleGuarded = lifetime.guard([this](const NSEvent& event) { handle(event); })](
                                 const NSEvent& event) mutable {
            handleGuarded(event);
            return std::optional(event);
        });
    registerFinderInputMonitor();
}

void FinderObserver::registerFinderInputMonitor() {
    auto respond =
        lifetime.guard([this](NSEventType type, platform::CGPoint mouseLocation) { handleInput(type, mouseLocation); });
    finderInputMonitor = platform.events.addGlobalMonitorForEventsMatchingMask(
        inputMonitorMask, [&events = platform.events, &dispatch = platform.dispatch,
                           respond = std::move(respond)](const NSEvent& event) mutable {
            const platform::CGPoint mouseLocation = events.mouseLocation();
            const NSEventType type = event.type;
            if (dispatch.isMainThread())
                respond(type, mouseLocation);
            else
                dispatch.mainAsync([respond, type, mouseLocation]() mutable { respond(type, mouseLocation); });
        });
}

void FinderObserver::handle(const NSEvent& event) {
    if (!*finderIsFrontmost) return;
    if ((event.modifierFlags & platform::NSEventModifierFlags::command) == 0) return;
    if (event.charactersIgnoringModifiers != "l" && event.charactersIgnoringModifiers != "L") return;
    tally.editRequests += 1;
    editRequestToken.set(platform.uuids.makeUUID());
}

void FinderObserver::handleInput(NSEventType type, const platform::CGPoint& mouseLocation) {
    switch (type) {
    case NSEventType::leftMouseDragged:
        updateLiveGeometry(mouseLocation, false);
        break;
    case NSEventType::leftMouseDown:
        startLiveGeometryTracking(mouseLocation);
        break;
    case NSEventType::leftMouseUp:
        updateLiveGeometry(mouseLocation, false);
        stopLiveGeometryTracking();
        scheduleInputRefresh();
        break;
    case NSEventType::rightMouseUp:
    case NSEventType::keyUp:
        scheduleInputRefresh();
        break;
    default:
        break;
    }
}

void FinderObserver::scheduleInputRefresh() {
    if (!*finderIsFrontmost) return;
    if (pendingInputRefresh) pendingInputRefresh->cancel();
    pendingInputRefresh = std::make_shared<platform::DispatchWorkItem>(lifetime.guard([this] {
        platform.dispatch.mainTask(lifetime.guard([this] {
            requestSelectionSnapshot();
            refresh(true);
        }));
    }));
    platform.dispatch.mainAfter(inputRefreshDelay, pendingInputRefresh);
}

void FinderObserver::pollIfNeeded() {
    // A drag is followed without passes.
    if (liveGeometryTimer) return;
    const platform::Duration interval =
        *finderIsFrontmost ? pollIntervalFinderFrontmost : pollIntervalFinderNotFrontmost;
    const platform::Date now = platform.clock.now();
    if (now - lastPollRefresh < interval) return;
    lastPollRefresh = now;
    refresh(true);
}

FinderWindowEventMonitor& FinderObserver::windowEventMonitor() {
    if (!eventMonitor) {
        eventMonitor = std::make_unique<FinderWindowEventMonitor>(
            platform, lifetime.guard([this](const FinderWindowEvent& event) { handleAccessibilityEvent(event); }));
    }
    return *eventMonitor;
}

void FinderObserver::handleAccessibilityEvent(const FinderWindowEvent& event) {
    // A number may be given to another window once its own is gone.
    if (event.notification == "AXUIElementDestroyed") windowTracker->forgetKnownWindows();
    if (event.notification == "AXMoved" || event.notification == "AXResized") {
        if (liveGeometryWindowID) {
            updateLiveGeometry(platform.events.mouseLocation(), true);
            return;
        }
        if (applyGeometryEvent(event)) return;
    }
    refresh(true);
}

}  // namespace brindle
