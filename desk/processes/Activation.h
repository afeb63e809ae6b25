// Bringing applications to the front, and their windows with them. Activation takes effect at once; who is told of it subscribes to Processes::frontmostChanged.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Signal.h"

namespace desk {

class Processes;
class WindowStack;

class Activation {
public:
    Activation(Processes& theProcesses, WindowStack& theWindows) : processes(theProcesses), windows(theWindows) {}

    // By bundle identifier, all windows forward, as a person switches applications; false when it doesn't run.
    bool activate(const std::string& bundleIdentifier);
    // `allWindows` false brings only the main window forward. A process that doesn't run is ignored.
    void activate(std::int32_t processIdentifier, bool allWindows);
    // At the process's own request, as a script's `activate` has it: the keyboard becomes its front window's in any case. In front already, its windows are left as they are:
    // what stands between them goes on standing there.
    void activateItself(std::int32_t processIdentifier);

    // A window of another process no longer has the keyboard, though the frontmost process may be the same as before.
    platform::Signal<> keyboardTaken;

    // 0 when the process has no window on screen that can be main.
    std::int64_t mainWindow(std::int32_t processIdentifier) const;

private:
    Processes& processes;
    WindowStack& windows;
};

}  // namespace desk
