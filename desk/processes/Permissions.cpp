#include "desk/processes/Permissions.h"

#include <utility>

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

void Permissions::askForAccessibility(const std::string& application) {
    accessibilityAsker = application;
}

void Permissions::beginWait(const std::string& application) {
    if (waiters++ == 0) asker = application;
}

void Permissions::endWait() {
    if (--waiters == 0) asker.reset();
}

std::optional<SystemAlert> Permissions::prompt() const {
    if (!asker) return std::nullopt;
    return SystemAlert{"“" + *asker +
                           "” wants access to control “Finder”. Allowing control will provide access to documents and "
                           "data in “Finder”, and to perform actions within that app.",
                       "",
                       {dontAllow, allow}};
}

bool Permissions::pressPromptButton(const std::string& label) {
    if (!asker || (label != dontAllow && label != allow)) return false;
    asker.reset();
    setAutomation(label == allow ? AutomationPermission::allowed : AutomationPermission::denied);
    return true;
}

}  // namespace desk
