// Keeps one overlay for each Finder window that the observer publishes: makes, updates, places, stacks and removes
// them, opens the path field on the observer's request, and closes it on a click elsewhere. The application delegate
// makes one, for good. It never asks Finder anything. Main thread only.
//
// The active window's bar floats; every other one stands right above its own window, where what covers the window
// covers the bar.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "overlay/FinderOverlayWindowController.h"
#include "platform/Lifetime.h"
#include "platform/Platform.h"
#include "platform/Token.h"
#include "tracking/FinderObserver.h"

namespace brindle {

class FinderOverlayCoordinator {
public:
    using Controllers = std::map<std::string, std::shared_ptr<FinderOverlayWindowController>, std::less<>>;

    // Shows at once what the observer has published.
    FinderOverlayCoordinator(platform::Platform& thePlatform, std::shared_ptr<FinderObserver> theObserver,
                             std::shared_ptr<FinderNavigationService> theNavigationService,
                             std::shared_ptr<ClipboardService> theClipboardService,
                             std::shared_ptr<TerminalService> theTerminalService,
                             std::shared_ptr<VSCodeService> theVSCodeService);
    FinderOverlayCoordinator(const FinderOverlayCoordinator&) = delete;
    FinderOverlayCoordinator& operator=(const FinderOverlayCoordinator&) = delete;

    // By window identifier.
    const Controllers& liveControllers() const { return controllers; }

private:
    // What a pass found out before it looked at the single windows.
    struct Pass {
        bool finderIsFrontmost;
        std::optional<std::string_view> activeWindowID;
        bool reordersAll;
    };

    void wire();
    void update(const std::vector<FinderWindowState>& windows, const std::optional<FinderWindowState>& activeWindow,
                bool finderIsFrontmost, const std::optional<std::string>& frontmostBundleIdentifier);
    void updateOverlay(const FinderWindowState& state, const Pass& pass);
    void removeControllersExcept(const std::vector<FinderWindowState>& windows);
    FinderOverlayWindowController& controller(const std::string& forID);
    // The frame is the Finder window's. Does nothing to a panel that is there already.
    void position(FinderOverlayPanel& panel, const platform::CGRect& forFrame, bool isFullScreen);
    void applyLiveGeometry(std::string_view windowID, const platform::CGRect& frame, bool isFullScreen);
    void answerEditRequest();
    void registerOutsideClickMonitor();
    void cancelEditingOutside();

    platform::Platform& platform;
    std::shared_ptr<FinderObserver> observer;
    std::shared_ptr<FinderNavigationService> navigationService;
    std::shared_ptr<ClipboardService> clipboardService;
    std::shared_ptr<TerminalService> terminalService;
    std::shared_ptr<VSCodeService> vscodeService;

    Controllers controllers;
    std::vector<platform::Token> cancellables;
    platform::Token outsideClickMonitor;
    // As of the end of the last pass.
    std::optional<std::string> lastActiveWindowID;
    bool lastFinderIsFrontmost = false;
    std::optional<std::string> lastFrontmostApplicationBundleIdentifier;

    platform::Lifetime lifetime;
};

}  // namespace brindle
