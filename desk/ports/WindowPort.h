// Makes the windows of one application: each is an entry of the window stack under a number of its own.
#pragma once

#include "platform/Windows.h"

namespace desk {

class Input;
class LaunchedApplication;
class WindowStack;

class WindowPort final : public platform::WindowSystem {
public:
    WindowPort(WindowStack& theWindows, Input& theInput, LaunchedApplication& theApplication)
        : windows(theWindows), input(theInput), application(theApplication) {}
    std::unique_ptr<platform::WindowHandle> makeWindow(platform::NSWindow& window,
                                                       const platform::CGRect& frame) override;
    platform::CGRect frameRectForContentRect(const platform::CGRect& content, unsigned styleMask) const override;
    platform::CGRect contentRectForFrameRect(const platform::CGRect& frame, unsigned styleMask) const override;

private:
    WindowStack& windows;
    Input& input;
    LaunchedApplication& application;
};

}  // namespace desk
