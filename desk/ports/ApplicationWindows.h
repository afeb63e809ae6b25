// A launched application towards the person at the machine. What is done to its windows and what happens in them is posted to its loop; a press brings it forward at once, unless the
// window is a panel that leaves the order of applications alone.
#pragma once

#include "desk/windows/WindowKeeper.h"
#include "platform/Windows.h"

namespace desk {

class Displays;
class LaunchedApplication;
class Processes;
class WindowStack;

class ApplicationWindows final : public WindowKeeper {
public:
    ApplicationWindows(LaunchedApplication& theApplication, WindowStack& theStack, Displays& theDisplays,
                       Processes& theProcesses)
        : application(theApplication), stack(theStack), displays(theDisplays), processes(theProcesses) {}

    WindowTraits traits(std::int64_t window) const override;
    void bringForward(std::int64_t window) override;
    void makeKey(std::int64_t window) override;
    void reopen() override;
    void close(std::int64_t window) override;
    void minimize(std::int64_t window) override;
    void restore(std::int64_t window) override;
    void zoom(std::int64_t window) override;
    void setFrame(std::int64_t window, const platform::CGRect& frame) override;
    void handle(std::int64_t window, const platform::NSEvent& event) override;

private:
    // In a turn of the application, if the window is there still.
    template <typename Act>
    void post(std::int64_t window, Act act);

    LaunchedApplication& application;
    WindowStack& stack;
    Displays& displays;
    Processes& processes;
};

}  // namespace desk
