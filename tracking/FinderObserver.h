// Everything the platform says about Finder ends here, and everything the overlay shows comes out of here, as five published values and two
// callbacks. The application delegate builds the one instance; the overlay coordinator subscribes. It draws nothing and never waits for
// Finder's AppleScript: paths are read on queues of their own, and a pass works from the last answers. Main thread only.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/Lifetime.h"
#include "platform/Platform.h"
#include "tracking/AccessibilityManager.h"
#include "tracking/FinderPathProvider.h"
#include "tracking/FinderWindowEventMonitor.h"
#include "tracking/FinderWindowState.h"
#include "tracking/FinderWindowTracker.h"

namespace brindle {

// A window, as the observer sees it:
//   condition   tracked  in windows  cached   moves on when
//   new         yes      no          no       its first snapshot arrives: published
//   published   yes      yes         yes      it leaves the tracked list: dormant
//   dormant     no       no          yes      it returns, with the same title: published, with another: new; it is pruned: forgotten
//   forgotten   no       no          no       it returns: new
class FinderObserver : public platform::ObservableObject {
public:
    // idle: no window is followed. waiting: a press in its strip, not yet seen to move. predicting: its frame follows the mouse.
    enum class LiveGeometryState { idle, waiting, predicting };
    // Since launch.
    struct Counts {
        std::int64_t starts = 0;
        std::int64_t passes = 0;
        std::int64_t pathFetches = 0;
        std::int64_t selectionFetches = 0;
        std::int64_t editRequests = 0;
    };

    // Starts nothing.
    FinderObserver(platform::Platform& thePlatform, std::shared_ptr<AccessibilityManager> theAccessibilityManager,
                   std::shared_ptr<FinderWindowTracker> theWindowTracker,
                   std::shared_ptr<FinderPathProvider> thePathProvider);

    // On a running observer a full restart.
    void start();
    // Leaves fetches in flight alone; their answers are applied as usual.
    void stop();
    // One pass. The argument says whether it may start a window-list fetch.
    void refresh(bool allowPathFetch);

    LiveGeometryState liveGeometryState() const;
    const Counts& counts() const { return tally; }
    // Windows whose last state is kept, those on screen included.
    std::size_t cachedWindowCount() const { return cachedWindowStates.size(); }

    // Front window first. Frames are AppKit space.
    platform::Published<std::vector<FinderWindowState>, FinderObserver> windows{*this, {}};
    // A copy as of the last pass: what is written to single windows between passes doesn't touch it.
    platform::Published<std::optional<FinderWindowState>, FinderObserver> activeWindow{*this, std::nullopt};
    platform::Published<bool, FinderObserver> finderIsFrontmost{*this, false};
    platform::Published<std::optional<std::string>, FinderObserver> frontmostApplicationBundleIdentifier{*this,
                                                                                                         std::nullopt};
    // Each new value asks for the path field of the active window.
    platform::Published<platform::UUID, FinderObserver> editRequestToken;

    // Where the window that is being dragged is now, AppKit space. Called synchronously, past the published values.
    std::function<void(const std::string& windowID, const platform::CGRect& frame, bool isFullScreen)>
        onLiveGeometryChange;
    // At the end of every pass that published at least one window.
    std::function<void()> onFinderActivity;

private:
    // The pass.
    void readFrontmostApplication();
    bool wantsPathFetch(bool allowPathFetch, bool titlesChanged) const;
    bool titlesOrMembershipChanged() const;
    std::vector<FinderWindowState> mergedWindows();
    std::optional<FinderWindowState> merged(const TrackedFinderWindow& window, const FinderWindowState* previous);
    const FinderWindowState* matchingCachedState(const TrackedFinderWindow& window);
    void cache(const FinderWindowState& state, platform::Date date);
    void pruneWindowCache();
    void forget(const std::string& windowID);
    void setVisibleWindows(std::vector<FinderWindowState> list);
    const platform::NSScreen* screen(const platform::CGRect& rect) const;
    void logStatus(std::size_t mergedCount);
    std::optional<std::size_t> indexOfWindow(const std::string& id) const;
    // Publishes whether or not the window comes out equal, and caches it.
    template <typename Change>
    void changeWindow(std::size_t index, Change change) {
        FinderWindowState written;
        windows.mutate([&](std::vector<FinderWindowState>& list) {
            change(list[index]);
            written = list[index];
        });
        cache(written, platform.clock.now());
    }

    // Snapshots: asked for on queues, taken back to the main thread.
    using SnapshotsByWindowID = std::unordered_map<std::string, FinderPathSnapshot>;
    void requestPathSnapshots();
    void receivePathSnapshots(const std::vector<FinderPathSnapshot>& answer);
    void requestSelectionSnapshot();
    void receiveSelectionSnapshot(const std::optional<FinderSelectionSnapshot>& answer, std::int64_t generation);
    static SnapshotsByWindowID matchSnapshots(const std::vector<TrackedFinderWindow>& to,
                                              const std::vector<FinderPathSnapshot>& snapshots);

    // Triggers.
    void registerWorkspaceObservers();
    void registerKeyboardMonitors();
    void registerFinderInputMonitor();
    void applicationDidActivate();
    void activeSpaceDidChange();
    void handle(const platform::NSEvent& event);
    void handleInput(platform::NSEventType type, const platform::CGPoint& mouseLocation);
    void handleAccessibilityEvent(const FinderWindowEvent& event);
    void pollIfNeeded();
    void scheduleInputRefresh();
    FinderWindowEventMonitor& windowEventMonitor();

    // Live geometry. What is confirmed (last observed), predicted and given out (last published) are kept apart.
    void startLiveGeometryTracking(const platform::CGPoint& mouseLocation);
    void updateLiveGeometry(const platform::CGPoint& mouseLocation, bool reconcileWithFinder);
    void awaitFirstMove(const FinderWindowState& state, const platform::CGPoint& mouseLocation);
    void predict(const FinderWindowState& state, const platform::CGPoint& mouseLocation, bool reconcileWithFinder);
    platform::CGRect reconciled(const platform::CGRect& prediction);
    void stopLiveGeometryTracking();
    void publishLiveGeometry(const platform::CGRect& frame, const std::string& windowID, bool isFullScreen);
    std::optional<platform::CGRect> copyLiveGeometryFrame();
    bool applyGeometryEvent(const FinderWindowEvent& event);
    std::optional<std::size_t> indexOfWindow(const FinderWindowEvent& event, const platform::CGRect& frame) const;

    platform::Platform& platform;
    const std::shared_ptr<AccessibilityManager> accessibilityManager;
    const std::shared_ptr<FinderWindowTracker> windowTracker;
    const std::shared_ptr<FinderPathProvider> pathProvider;

    std::unique_ptr<platform::Timer> timer;
    platform::Token globalMonitor;
    platform::Token localMonitor;
    platform::Token finderInputMonitor;

    std::unique_ptr<platform::Timer> liveGeometryTimer;
    std::optional<std::string> liveGeometryWindowID;
    std::optional<platform::AXUIElement> liveGeometryElement;
    std::optional<platform::CGPoint> liveGeometryLastMouseLocation;
    std::optional<platform::CGRect> liveGeometryLastObservedFrame;
    std::optional<platform::CGRect> liveGeometryPredictedFrame;
    std::optional<platform::CGRect> liveGeometryLastPublishedFrame;
    bool liveGeometryIsConfirmed = false;

    std::shared_ptr<platform::DispatchWorkItem> pendingInputRefresh;
    std::vector<platform::Token> workspaceObservers;
    platform::Date lastAppleScriptRefresh = platform::Date::distantPast();
    std::unordered_map<std::string, std::string> lastTrackedTitles;
    std::vector<TrackedFinderWindow> latestTrackedWindows;
    // Keyed by window identifier, as all dictionaries here.
    SnapshotsByWindowID pathSnapshotsByWindowID;
    std::unordered_map<std::string, FinderWindowState> cachedWindowStates;
    std::unordered_map<std::string, platform::Date> cachedWindowLastSeen;
    std::string lastLoggedState;
    bool pathFetchInFlight = false;
    std::int64_t selectionFetchGeneration = 0;
    platform::Date lastPollRefresh = platform::Date::distantPast();
    std::unique_ptr<platform::SerialQueue> pathQueue;
    std::unique_ptr<platform::SerialQueue> selectionQueue;
    std::unique_ptr<FinderWindowEventMonitor> eventMonitor;
    Counts tally;
    platform::Lifetime lifetime;
};

}  // namespace brindle
