#include "app/OnboardingWindowController.h"

#include <utility>

#include "app/OrvaneOnboardingView.h"
#include "views/HostingView.h"

namespace brindle {

namespace {

constexpr const char* completedKey = "hasCompletedOnboardingV1";
constexpr platform::CGSize guideSize{620, 540};

}  // namespace

OnboardingWindowController::OnboardingWindowController(
    platform::Platform& thePlatform, std::shared_ptr<AccessibilityManager> theAccessibilityManager,
    std::shared_ptr<FinderAutomationPermissionManager> theAutomationManager, std::function<void()> theOnComplete)
    : OrdinaryWindowController(thePlatform),
      accessibilityManager(std::move(theAccessibilityManager)),
      automationManager(std::move(theAutomationManager)),
      onComplete(std::move(theOnComplete)) {}

bool OnboardingWindowController::showIfNeeded() {
    accessibilityManager->refresh();
    if (platform.defaults.boolForKey(completedKey) && accessibilityManager->isTrusted.get()) return false;
    show();
    return true;
}

void OnboardingWindowController::willShow() {
    accessibilityManager->refresh();
    automationManager->refresh();
}

std::unique_ptr<platform::ContentView> OnboardingWindowController::makeContentView() {
    OrvaneOnboardingView::Callbacks callbacks{.requestAccessibility =
                                                  lifetime.guard([this] { requestAccessibility(); }),
                                              .permissionsGranted = onComplete,
                                              .close = lifetime.guard([this] {
                                                  if (window) window->performClose();
                                              })};
    return std::make_unique<views::NSHostingView<OrvaneOnboardingView>>(
        platform, OrvaneOnboardingView(platform, *accessibilityManager, *automationManager, std::move(callbacks)));
}

OrdinaryWindowController::Description OnboardingWindowController::description() const {
    using namespace platform::NSWindowStyleMask;
    return {.title = "Welcome to Orvane",
            .contentSize = guideSize,
            .styleMask = titled | closable,
            .minSize = guideSize,
            .maxSize = guideSize};
}

// The system asks the user, and nobody waits for the answer.
void OnboardingWindowController::requestAccessibility() {
    accessibilityManager->isTrusted.setIfChanged(
        platform.accessibility.AXIsProcessTrustedWithOptions({{platform::kAXTrustedCheckOptionPrompt, true}}));
}

// From what is published: a permission that was granted since the last look counts as missing. A false takes back an earlier true.
void OnboardingWindowController::windowWillClose() {
    const bool hasBoth = accessibilityManager->isTrusted.get() &&
                         automationManager->status.get() == FinderAutomationPermissionManager::Status::allowed;
    platform.defaults.setObject(completedKey, hasBoth);
    onComplete();
    OrdinaryWindowController::windowWillClose();
}

}  // namespace brindle
