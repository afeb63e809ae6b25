#include "desk/processes/Permissions.h"

#include <utility>

#include "desk/processes/Alerts.h"

namespace desk {

namespace {

constexpr const char* dontAllow = "Don't Allow";
constexpr const char* allow = "OK";

}  // namespace

void Permissions::setAccessibility(bool granted) {
    accessibility = granted;
    changed();
}

void Permissions::setAutomation(AutomationPermission permission) {
    automation = permission;
    changed();
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
