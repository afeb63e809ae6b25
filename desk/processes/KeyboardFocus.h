// Which window has the keyboard. A window of a launched application that has become key keeps it until a mouse down in another process's window, another key window, a change of the frontmost
// application, or being ordered out. Without one, keys go to the frontmost application.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/Token.h"

namespace desk {

class Activation;
class Processes;
class WindowStack;

class KeyboardFocus {
public:
    KeyboardFocus(WindowStack& theWindows, Processes& theProcesses, Activation& theActivation);

    // 0 when keys go to the frontmost application.
    std::int64_t keyWindow() const { return key; }
    void makeKey(std::int64_t window);
    void windowOrderedOut(std::int64_t window);
    void processPressed(std::int32_t processIdentifier);

private:
    void frontmostChanged();
    std::int32_t ownerOf(std::int64_t window) const;

    WindowStack& windows;
    Processes& processes;
    Activation& activation;
    std::int64_t key = 0;
    std::vector<platform::Token> subscriptions;
};

}  // namespace desk
