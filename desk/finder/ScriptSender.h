// The thread that has sent a script to Finder, or asked whether it may, as something that can wait: the application's main thread or one of its queues. While it
// waits the machine goes on. It decides nothing about how long.
#pragma once

#include "platform/Time.h"

namespace desk {

class LaunchedApplication;
class Permissions;

class ScriptSender {
public:
    ScriptSender(Permissions& thePermissions, LaunchedApplication& theApplication)
        : permissions(thePermissions), application(theApplication) {}

    // False when the application ended meanwhile, and from then on.
    bool wait(platform::Duration duration);
    // Puts up the system prompt and waits for the user's answer; false also when no answer will ever come.
    bool waitForAutomationAnswer();
    bool isGone() const;

private:
    bool parkUntilAnswered();

    Permissions& permissions;
    LaunchedApplication& application;
    bool gone = false;
};

}  // namespace desk
