// What the user has allowed the application: Accessibility and Automation of Finder. While Automation is still to be asked, the first Apple Event puts up
// a system prompt and its sender waits for the answer; the machine goes on.
#pragma once

#include <optional>
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

class Permissions {
public:
    bool accessibility = true;
    AutomationPermission automation = AutomationPermission::allowed;
    platform::Signal<> changed;

    void setAccessibility(bool granted);
    void setAutomation(AutomationPermission permission);
    // Asks the user to give an application Accessibility; nobody waits for the answer.
    void askForAccessibility(const std::string& application);

    // Somebody waits for the user; the prompt is up while anybody does, in the name of the first, and goes when it is answered.
    void beginWait(const std::string& application);
    void endWait();
    std::optional<SystemAlert> prompt() const;
    // By label; answering it sets `automation` and wakes who waits. False when there is no such button.
    bool pressPromptButton(const std::string& label);

private:
    std::optional<std::string> asker;
    std::optional<std::string> accessibilityAsker;
    int waiters = 0;
};

}  // namespace desk
