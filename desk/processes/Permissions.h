// What the user has allowed the application: Accessibility and Automation of Finder. While Automation is still to be asked, the first Apple Event puts up
// a system prompt and its sender waits for the answer; the machine goes on.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Signal.h"

namespace desk {

class Alerts;

enum class AutomationPermission { allowed, denied, ask };

class Permissions {
public:
    explicit Permissions(Alerts& theAlerts) : alerts(theAlerts) {}

    bool accessibility = true;
    AutomationPermission automation = AutomationPermission::allowed;
    platform::Signal<> changed;

    void setAccessibility(bool granted);
    void setAutomation(AutomationPermission permission);
    // Puts up the system's prompt for an application, unless it is up already; nobody waits. It only leads to System Settings, and goes when the permission is given.
    void askForAccessibility(const std::string& application);
    // The user wants to see where Accessibility is given.
    platform::Signal<> accessibilitySettingsWanted;

    // Somebody waits for the user; the prompt is up while anybody does, in the name of the first. Answering it sets `automation` and wakes who waits.
    void beginWait(const std::string& application);
    void endWait();

private:
    Alerts& alerts;
    std::uint64_t prompt = 0;
    std::uint64_t accessibilityPrompt = 0;
    int waiters = 0;
};

}  // namespace desk
