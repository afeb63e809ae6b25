#include "desk/processes/Permissions.h"

#include <utility>

#include "desk/processes/Alerts.h"

namespace desk {

namespace {

constexpr const char* dontAllow = "Don't Allow";
constexpr const char* allow = "OK";
constexpr const char* deny = "Deny";
constexpr const char* openSettings = "Open System Settings";

}  // namespace

void Permissions::setAccessibility(bool granted) {
    accessibility = granted;
    if (granted) alerts.withdraw(std::exchange(accessibilityPrompt, 0));
    changed();
}

void Permissions::setAutomation(AutomationPermission permission) {
    automation = permission;
    changed();
}

void Permissions::askForAccessibility(const std::string& application) {
    if (accessibilityPrompt != 0) return;
    Alert alert;
    alert.source = "system";
    alert.icon = "System Settings";
    alert.message = "“" + application + "” would like to control this computer using accessibility features.";
    alert.informative = "Grant access to this application in Accessibility settings, located in System Settings.";
    alert.buttons = {deny, openSettings};
    alert.defaultButton = openSettings;
    alert.cancelButton = deny;
    accessibilityPrompt = alerts.show(std::move(alert), [this](const std::string& button) {
        accessibilityPrompt = 0;
        if (button == openSettings) accessibilitySettingsWanted();
    });
}

void Permissions::beginWait(const std::string& application) {
    if (waiters++ > 0) return;
    Alert alert;
    alert.source = "system";
    alert.icon = "Finder";
    alert.message = "“" + application +
                    "” wants access to control “Finder”. Allowing control will provide access to documents and data in "
                    "“Finder”, and to perform actions within that app.";
    alert.buttons = {dontAllow, allow};
    alert.defaultButton = allow;
    alert.cancelButton = dontAllow;
    prompt = alerts.show(std::move(alert), [this](const std::string& button) {
        setAutomation(button == allow ? AutomationPermission::allowed : AutomationPermission::denied);
    });
}

void Permissions::endWait() {
    if (--waiters == 0) alerts.withdraw(prompt);
}

}  // namespace desk
