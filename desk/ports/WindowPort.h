// Makes the windows of one application: each is an entry of the window stack under a number of its own.
#pragma once

#include "platform/Windows.h"

namespace desk {

class LaunchedApplication;
class Machine;

class WindowPort final : public platform::WindowSystem {
public:
    WindowPort(Machine& theMachine, LaunchedApplication& theApplication)
        : machine(theMachine), application(theApplication) {}
    std::unique_ptr<platform::WindowHandle> makeWindow(platform::NSWindow& window,
                                                       const platform::CGRect& frame) override;

private:
    Machine& machine;
    LaunchedApplication& application;
};

}  // namespace desk
