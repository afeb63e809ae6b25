// What the user has allowed the application: Accessibility and Automation of Finder. While Automation is still to be asked, the first Apple Event puts up
// a system prompt and its sender waits for the answer; the machine goes on.
#pragma once

#include <string>
#include <vector>

#include "platform/Published.h"

namespace desk {

enum class AutomationPermission { allowed, denied, ask };

struct SystemAlert {
    std::string message;
    std::string informative;
    std::vector<std::string> buttons;
};

struct Permissions {
    bool accessibility = true;
    AutomationPermission automation = AutomationPermission::allowed;
    // The prompt is up exactly while somebody waits for it; answering it sets `automation` and wakes who waits.
    bool automationPromptIsUp = false;
    platform::Signal<> changed;

    void setAccessibility(bool granted) {
        accessibility = granted;
        changed();
    }
    void setAutomation(AutomationPermission permission) {
        automation = permission;
        changed();
    }
};

}  // namespace desk
