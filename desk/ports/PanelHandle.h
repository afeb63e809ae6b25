// One window of an application towards the window stack and the keyboard. When the application has ended, its windows are off the stack already; the handle
// then answers where the window last was, and does nothing.
#pragma once

#include <cstdint>

#include "desk/windows/WindowStack.h"
#include "platform/Windows.h"

namespace desk {

class KeyboardFocus;
class LaunchedApplication;

class PanelHandle final : public platform::WindowHandle {
public:
    PanelHandle(WindowStack& theWindows, KeyboardFocus& theKeyboard, LaunchedApplication& theApplication,
                platform::NSWindow& theWindow, const platform::CGRect& frame);
    ~PanelHandle() override;

    std::int64_t windowNumber() const override { return number; }
    platform::CGRect frame() const override;
    void setFrame(const platform::CGRect& frame) override;
    int level() const override;
    void setLevel(int level) override;
    bool isVisible() const override;
    void orderWindow(platform::NSWindowOrderingMode mode, std::int64_t relativeTo) override;
    void setMiniaturized(bool miniaturized) override;
    bool isMiniaturized() const override;
    void makeKey() override;
    bool isKey() const override;
    void settingsChanged() override;
    void setNeedsDisplay() override;

private:
    const ServerWindow* entry() const;

    WindowStack& windows;
    KeyboardFocus& keyboard;
    LaunchedApplication& application;
    platform::NSWindow& window;
    const std::int64_t number;
    platform::CGRect lastFrame;
    int lastLevel = platform::NSNormalWindowLevel;
};

}  // namespace desk
