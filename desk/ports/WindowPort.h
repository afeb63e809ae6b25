// Makes the windows of one application: each is an entry of the window stack under a number of its own.
#pragma once

#include "platform/Windows.h"

namespace desk {

class KeyboardFocus;
class LaunchedApplication;
class WindowStack;

class WindowPort final : public platform::WindowSystem {
public:
    WindowPort(WindowStack& theWindows, KeyboardFocus& theKeyboard, LaunchedApplication& theApplication)
        : windows(theWindows), keyboard(theKeyboard), application(theApplication) {}
    std::unique_ptr<platform::WindowHandle> makeWindow(platform::NSWindow& window,
                                                       const platform::CGRect& frame) override;
    platform::CGRect frameRectForContentRect(const platform::CGRect& content, unsigned styleMask) const override;
    platform::CGRect contentRectForFrameRect(const platform::CGRect& frame, unsigned styleMask) const override;

private:
    WindowStack& windows;
    KeyboardFocus& keyboard;
    LaunchedApplication& application;
};

}  // namespace desk
