// The guide through the two permissions: fixed in size, shown at launch while something is missing and from the menu at any time. Its closing is when the user is done with it, granted or
// not. What it shows, and the looking at permissions while it is open, is OrvaneOnboardingView's affair. Main thread only.
#pragma once

#include <functional>
#include <memory>

#include "app/OrdinaryWindowController.h"
#include "platform/Lifetime.h"
#include "tracking/AccessibilityManager.h"
#include "tracking/FinderAutomationPermissionManager.h"

namespace brindle {

class OnboardingWindowController final : public OrdinaryWindowController {
public:
    // `theOnComplete` is called when both permissions have been seen, and at each close.
    OnboardingWindowController(platform::Platform& thePlatform,
                               std::shared_ptr<AccessibilityManager> theAccessibilityManager,
                               std::shared_ptr<FinderAutomationPermissionManager> theAutomationManager,
                               std::function<void()> theOnComplete);

    // At launch. Answers whether the guide is now on screen; it isn't when Accessibility is there and the guide was last closed with both permissions.
    bool showIfNeeded();
    void windowWillClose() override;

private:
    void willShow() override;
    std::unique_ptr<platform::ContentView> makeContentView() override;
    Description description() const override;
    void requestAccessibility();

    const std::shared_ptr<AccessibilityManager> accessibilityManager;
    const std::shared_ptr<FinderAutomationPermissionManager> automationManager;
    const std::function<void()> onComplete;
    platform::Lifetime lifetime;
};

}  // namespace brindle
