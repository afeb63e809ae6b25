#include "desk/ports/WindowPort.h"

#include <algorithm>

#include "desk/ports/PanelHandle.h"
#include "desk/windows/WindowFrame.h"

namespace desk {

namespace {

double titleBarOf(unsigned styleMask) {
    return (styleMask & platform::NSWindowStyleMask::titled) != 0 ? windowTitleBarHeight : 0;
}

}  // namespace

std::unique_ptr<platform::WindowHandle> WindowPort::makeWindow(platform::NSWindow& window,
                                                               const platform::CGRect& frame) {
    return std::make_unique<PanelHandle>(windows, keyboard, application, window, frame);
}

platform::CGRect WindowPort::frameRectForContentRect(const platform::CGRect& content, unsigned styleMask) const {
    return {content.origin, {content.width(), content.height() + titleBarOf(styleMask)}};
}

platform::CGRect WindowPort::contentRectForFrameRect(const platform::CGRect& frame, unsigned styleMask) const {
    return {frame.origin, {frame.width(), std::max(0.0, frame.height() - titleBarOf(styleMask))}};
}

}  // namespace desk
