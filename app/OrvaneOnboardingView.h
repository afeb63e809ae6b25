// What the guide shows: two numbered steps, each with its live status, a button, and a picture of the System Settings switch that the user has to turn on. While it is on screen it looks
// at both permissions once a second; it asks for Accessibility by itself once, and tells once that both are there. What a permission is, and when the guide is shown, it doesn't decide.
#pragma once

#include <functional>
#include <string>

#include "tracking/AccessibilityManager.h"
#include "tracking/FinderAutomationPermissionManager.h"
#include "views/Views.h"

namespace brindle {

class OrvaneOnboardingView {
public:
    struct Callbacks {
        std::function<void()> requestAccessibility;
        std::function<void()> permissionsGranted;
        std::function<void()> close;
    };
    OrvaneOnboardingView(platform::Platform& thePlatform, AccessibilityManager& theAccessibilityManager,
                         FinderAutomationPermissionManager& theAutomationManager, Callbacks callbacks);

    void connect(views::Context& context);
    views::View body() const;

private:
    using Status = FinderAutomationPermissionManager::Status;

    // A card: status mark, texts with a picture below them, status label with what can be done about it.
    struct PermissionStep {
        const char* number;
        const char* title;
        const char* detail;
        bool isComplete;
        views::View extra;
        views::View actions;
    };
    static views::View permissionStep(PermissionStep step);
    static views::View statusMark(const char* number, bool isComplete);
    static views::View permissionStatus(bool isComplete);

    views::View header() const;
    views::View steps() const;
    views::View accessibilityStep() const;
    views::View automationStep() const;
    views::View footer() const;
    views::View icon(double side) const;
    views::View accessibilityToggleGuide() const;
    views::View automationToggleGuide() const;
    views::View automationMessage() const;
    std::string automationButtonTitle() const;
    std::string automationMessageText() const;

    bool isTrusted() const { return accessibilityManager->isTrusted.get(); }
    const Status& automationStatus() const { return automationManager->status.get(); }
    void automationButtonPressed() const;

    static views::Task poll(platform::Dispatch& dispatch, OrvaneOnboardingView view);
    void look() const;
    void reportPermissionsGrantedIfNeeded() const;

    platform::Platform& platform;
    views::ObservedObject<AccessibilityManager> accessibilityManager;
    views::ObservedObject<FinderAutomationPermissionManager> automationManager;
    std::function<void()> requestAccessibility;
    std::function<void()> permissionsGranted;
    std::function<void()> close;
    // They outlive a close of the window, so the prompt comes by itself once in the life of the process.
    views::State<bool> requestedAccessibility{false};
    views::State<bool> reportedPermissionsGranted{false};
    platform::NSImage appIcon;
};

}  // namespace brindle
