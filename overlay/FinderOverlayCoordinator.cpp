#include "overlay/FinderOverlayCoordinator.h"

#include <cmath>
#include <unordered_set>
#include <utility>

#include "tracking/DebugLog.h"
#include "tracking/OverlayMetrics.h"

namespace brindle {

using platform::CGRect;

namespace {

// Smaller differences of a panel's place don't show.
constexpr double tolerance = 0.5;

bool isNear(double a, double b) {
    return std::abs(a - b) < tolerance;
}

bool approximatelyEqual(const CGRect& a, const CGRect& b) {
    return isNear(a.minX(), b.minX()) && isNear(a.minY(), b.minY()) && isNear(a.width(), b.width()) &&
           isNear(a.height(), b.height());
}

// On the window's top edge, or inside a full-screen window along its bottom edge.
CGRect panelFrame(const CGRect& window, bool isFullScreen) {
    return platform::CGRectMake(window.minX(), isFullScreen ? window.minY() : window.maxY(), window.width(),
                                OverlayMetrics::barHeight);
}

}  // namespace

FinderOverlayCoordinator::FinderOverlayCoordinator(platform::Platform& thePlatform,
                                                   std::shared_ptr<FinderObserver> theObserver,
                                                   std::shared_ptr<FinderNavigationService> theNavigationService,
                                                   std::shared_ptr<ClipboardService> theClipboardService,
                                                   std::shared_ptr<TerminalService> theTerminalService,
                                                   std::shared_ptr<VSCodeService> theVSCodeService)
    : platform(thePlatform),
      observer(std::move(theObserver)),
      navigationService(std::move(theNavigationService)),
      clipboardService(std::move(theClipboardService)),
      terminalService(std::move(theTerminalService)),
      vscodeService(std::move(theVSCodeService)) {
    wire();
}

void FinderOverlayCoordinator::wire() {
    observer->onLiveGeometryChange =
        lifetime.guard([this](const std::string& windowID, const CGRect& frame, bool isFullScreen) {
            applyLiveGeometry(windowID, frame, isFullScreen);
        });

    using Update = std::function<void(const std::vector<FinderWindowState>&, const std::optional<FinderWindowState>&,
                                      bool, const std::optional<std::string>&)>;
    const Update run = lifetime.guard([this](const auto& windows, const auto& activeWindow, bool finderIsFrontmost,
                                             const auto& frontmostBundleIdentifier) {
        update(windows, activeWindow, finderIsFrontmost, frontmostBundleIdentifier);
    });
    cancellables = platform::combineLatest(run, observer->windows, observer->activeWindow, observer->finderIsFrontmost,
                                           observer->frontmostApplicationBundleIdentifier);
    cancellables.push_back(
        observer->editRequestToken.subscribe(lifetime.guard([this](const platform::UUID&) { answerEditRequest(); }),
                                             platform::PublishedValue<platform::UUID>::Delivery::onChangeOnly));
    registerOutsideClickMonitor();
}

void FinderOverlayCoordinator::update(const std::vector<FinderWindowState>& windows,
                                      const std::optional<FinderWindowState>& activeWindow, bool finderIsFrontmost,
                                      const std::optional<std::string>& frontmostBundleIdentifier) {
    Pass pass{finderIsFrontmost, std::nullopt, false};
    if (activeWindow) pass.activeWindowID = activeWindow->id;
    const bool activeWindowChanged = pass.activeWindowID != lastActiveWindowID;
    const bool frontmostApplicationChanged = frontmostBundleIdentifier != lastFrontmostApplicationBundleIdentifier;
    const bool frontmostChanged = finderIsFrontmost != lastFinderIsFrontmost;
    pass.reordersAll = activeWindowChanged || frontmostApplicationChanged || frontmostChanged;

    removeControllersExcept(windows);
    for (const FinderWindowState& state : windows) updateOverlay(state, pass);

    lastActiveWindowID = pass.activeWindowID;
    lastFinderIsFrontmost = finderIsFrontmost;
    lastFrontmostApplicationBundleIdentifier = frontmostBundleIdentifier;
}

void FinderOverlayCoordinator::removeControllersExcept(const std::vector<FinderWindowState>& windows) {
    std::unordered_set<std::string_view> shown;
    shown.reserve(windows.size());
    for (const FinderWindowState& state : windows) shown.insert(state.id);
    for (auto each = controllers.begin(); each != controllers.end();) {
        if (shown.contains(each->first)) {
            ++each;
            continue;
        }
        each->second->panel->orderOut();
        each = controllers.erase(each);
    }
}

void FinderOverlayCoordinator::updateOverlay(const FinderWindowState& state, const Pass& pass) {
    FinderOverlayWindowController& overlay = controller(state.id);
    FinderOverlayPanel& panel = *overlay.panel;
    overlay.viewModel->setWindowState(state);
    const bool isActive = pass.finderIsFrontmost && pass.activeWindowID == state.id;
    overlay.viewModel->isActive.setIfChanged(isActive);

    const int level = isActive ? platform::NSFloatingWindowLevel : platform::NSNormalWindowLevel;
    const bool levelChanged = panel.level() != level;
    panel.setLevel(level);
    if (!overlay.isDragging) position(panel, state.frame, state.isFullScreen);

    const bool parentChanged = std::exchange(overlay.parentWindowNumber, state.windowNumber) != state.windowNumber;
    const bool parentZChanged = std::exchange(overlay.parentZIndex, state.zIndex) != state.zIndex;
    const bool isOrdered = parentChanged || parentZChanged || levelChanged || pass.reordersAll || !panel.isVisible();
    if (!isOrdered || overlay.isDragging) return;
    if (isActive) {
        panel.orderFrontRegardless();
    } else {
        panel.orderWindow(platform::NSWindowOrderingMode::above, state.windowNumber);
    }
}

FinderOverlayWindowController& FinderOverlayCoordinator::controller(const std::string& forID) {
    auto& stored = controllers[forID];
    if (!stored) {
        stored = std::make_shared<FinderOverlayWindowController>(platform, navigationService, clipboardService,
                                                                 terminalService, vscodeService);
        DebugLog::write(platform, "panel-created id=" + forID);
    }
    return *stored;
}

void FinderOverlayCoordinator::position(FinderOverlayPanel& panel, const CGRect& forFrame, bool isFullScreen) {
    const CGRect target = panelFrame(forFrame, isFullScreen);
    const CGRect current = panel.frame();
    if (approximatelyEqual(current, target)) return;
    if (isNear(current.width(), target.width()) && isNear(current.height(), target.height())) {
        panel.setFrameOrigin(target.origin);
    } else {
        panel.setFrame(target, true);
    }
}

void FinderOverlayCoordinator::applyLiveGeometry(std::string_view windowID, const CGRect& frame, bool isFullScreen) {
    const auto found = controllers.find(windowID);
    if (found == controllers.end() || found->second->isDragging) return;
    position(*found->second->panel, frame, isFullScreen);
}

void FinderOverlayCoordinator::answerEditRequest() {
    const auto& activeWindow = observer->activeWindow.get();
    if (!activeWindow) return;
    const auto found = controllers.find(activeWindow->id);
    if (found == controllers.end()) return;
    const auto overlay = found->second;
    overlay->viewModel->beginEditing();
    overlay->panel->orderFrontRegardless();
    overlay->panel->makeKeyWindow();
}

void FinderOverlayCoordinator::registerOutsideClickMonitor() {
    constexpr platform::NSEventMask mask = platform::maskOf(platform::NSEventType::leftMouseDown) |
                                           platform::maskOf(platform::NSEventType::rightMouseDown);
    outsideClickMonitor =
        platform.events.addGlobalMonitorForEventsMatchingMask(mask, lifetime.guard([this](const platform::NSEvent&) {
            platform.dispatch.mainTask(lifetime.guard([this] { cancelEditingOutside(); }));
        }));
}

void FinderOverlayCoordinator::cancelEditingOutside() {
    const platform::CGPoint location = platform.events.mouseLocation();
    for (const auto& [id, overlay] : controllers) {
        if (!overlay->viewModel->isEditing.get()) continue;
        if (!platform::CGRectContainsPoint(overlay->panel->frame(), location)) overlay->viewModel->cancelEditing();
    }
}

}  // namespace brindle
