#include "app/AppDelegate.h"

#include "tracking/DebugLog.h"

namespace brindle {

AppDelegate::AppDelegate(platform::Platform& thePlatform)
    : platform(thePlatform),
      launchAtLoginManager(std::make_shared<LaunchAtLoginManager>(thePlatform)),
      updateManager(std::make_shared<UpdateManager>(thePlatform)),
      analyticsService(thePlatform.shared<AnalyticsService>()),
      automationPermissionManager(std::make_shared<FinderAutomationPermissionManager>(thePlatform)),
      aboutWindowController(thePlatform),
      accessibilityManager(std::make_shared<AccessibilityManager>(thePlatform)),
      observer(std::make_shared<FinderObserver>(thePlatform, accessibilityManager,
                                                std::make_shared<FinderWindowTracker>(thePlatform),
                                                std::make_shared<FinderPathProvider>(thePlatform))) {}

void AppDelegate::applicationWillFinishLaunching() {
    platform.application.setActivationPolicy(platform::NSApplicationActivationPolicy::accessory);
}

void AppDelegate::applicationDidFinishLaunching() {
    if (terminateIfAnotherInstanceIsRunning()) return;
    updateManager->updaterController().startUpdater();
    updateManager->onWillRelaunchApplication = lifetime.guard([this] { allowsTermination = true; });
    launchAtLoginManager->configureDefault();
    analyticsService.configure();
    observer->onFinderActivity =
        lifetime.guard([this] { analyticsService.recordActiveUseIfNeeded(platform.clock.now()); });
    DebugLog::write(platform, accessibilityManager->isTrusted.get() ? "launch trusted=true" : "launch trusted=false");
    makeOverlayCoordinator();
    if (onboarding().showIfNeeded()) return;
    startObserverOnce();
}

platform::NSApplicationTerminateReply AppDelegate::applicationShouldTerminate() {
    return allowsTermination ? platform::NSApplicationTerminateReply::terminateNow
                             : platform::NSApplicationTerminateReply::terminateCancel;
}

bool AppDelegate::terminateIfAnotherInstanceIsRunning() {
    const auto identifier = platform.bundle.bundleIdentifier();
    if (!identifier) return false;
    auto others = platform.workspace.runningApplicationsWithBundleIdentifier(*identifier);
    std::erase_if(others, [&](const platform::NSRunningApplication& each) {
        return each.processIdentifier == platform.workspace.currentProcessIdentifier();
    });
    if (others.empty()) return false;
    quit();
    return true;
}

void AppDelegate::quit() {
    allowsTermination = true;
    platform.application.terminate();
}

// Before the observer starts, so that the first list of windows doesn't pass it by.
void AppDelegate::makeOverlayCoordinator() {
    overlayCoordinator = std::make_unique<FinderOverlayCoordinator>(
        platform, observer, std::make_shared<FinderNavigationService>(platform),
        std::make_shared<ClipboardService>(platform), std::make_shared<TerminalService>(platform),
        std::make_shared<VSCodeService>(platform));
}

OnboardingWindowController& AppDelegate::onboarding() {
    if (!onboardingWindowController)
        onboardingWindowController =
            std::make_unique<OnboardingWindowController>(platform, accessibilityManager, automationPermissionManager,
                                                         lifetime.guard([this] { startObserverOnce(); }));
    return *onboardingWindowController;
}

SettingsWindowController& AppDelegate::settings() {
    if (!settingsWindowController)
        settingsWindowController =
            std::make_unique<SettingsWindowController>(platform, launchAtLoginManager, analyticsService);
    return *settingsWindowController;
}

void AppDelegate::startObserverOnce() {
    if (observerStarted) return;
    observerStarted = true;
    observer->start();
}

}  // namespace brindle
