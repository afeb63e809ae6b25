// Builds and owns every long-lived object of the application, in a fixed order, answers the platform's launch
// callbacks, and lets nobody end the application but through its own exits. It exists once, for the life of the
// process, and does no work of its own. Main thread only.
//
//   state        entered by                                      left by
//   constructed  process start                                   the will-finish callback
//   duplicate    another instance found                          terminate: the launch has stopped
//   guided       something the guide is for is missing            the guide's onComplete
//   running      the observer has been started                   an exit that sets allowsTermination
#pragma once

#include <memory>

#include "app/AboutWindowController.h"
#include "app/OnboardingWindowController.h"
#include "app/SettingsWindowController.h"
#include "overlay/FinderOverlayCoordinator.h"
#include "platform/Lifetime.h"
#include "platform/Platform.h"
#include "services/AnalyticsService.h"
#include "services/LaunchAtLoginManager.h"
#include "services/UpdateManager.h"
#include "tracking/AccessibilityManager.h"
#include "tracking/FinderAutomationPermissionManager.h"
#include "tracking/FinderObserver.h"

namespace brindle {

class AppDelegate final : public platform::NSApplicationDelegate {
public:
    explicit AppDelegate(platform::Platform& thePlatform);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    void applicationWillFinishLaunching() override;
    void applicationDidFinishLaunching() override;
    platform::NSApplicationTerminateReply applicationShouldTerminate() override;

    // What the menu calls. The windows come up centred and in front.
    void showAbout() { aboutWindowController.show(); }
    void showPermissionGuide() { onboarding().show(); }
    void showSettings() { settings().show(); }
    void quit();

    AccessibilityManager& accessibility() { return *accessibilityManager; }
    UpdateManager& updates() { return *updateManager; }

    const UpdateManager& updates() const { return *updateManager; }
    const LaunchAtLoginManager& launchAtLogin() const { return *launchAtLoginManager; }
    const FinderObserver& finderObserver() const { return *observer; }
    const FinderAutomationPermissionManager& automationPermissions() const { return *automationPermissionManager; }
    // Null until the launch has made it.
    const FinderOverlayCoordinator* coordinator() const { return overlayCoordinator.get(); }

private:
    // The newcomer is the one that quits.
    bool terminateIfAnotherInstanceIsRunning();
    void makeOverlayCoordinator();
    void startObserverOnce();
    OnboardingWindowController& onboarding();
    SettingsWindowController& settings();

    platform::Platform& platform;
    // In the order in which they are made. The installer belongs behind analytics.
    std::shared_ptr<LaunchAtLoginManager> launchAtLoginManager;
    std::shared_ptr<UpdateManager> updateManager;
    AnalyticsService& analyticsService;
    std::shared_ptr<FinderAutomationPermissionManager> automationPermissionManager;
    std::unique_ptr<FinderOverlayCoordinator> overlayCoordinator;
    AboutWindowController aboutWindowController;
    // Each made when it is first asked for.
    std::unique_ptr<SettingsWindowController> settingsWindowController;
    std::unique_ptr<OnboardingWindowController> onboardingWindowController;
    bool observerStarted = false;
    bool allowsTermination = false;
    std::shared_ptr<AccessibilityManager> accessibilityManager;
    std::shared_ptr<FinderObserver> observer;
    platform::Lifetime lifetime;
};

}  // namespace brindle
