#include "desk/ports/ApplicationWindows.h"

#include <utility>

#include "desk/processes/LaunchedApplication.h"
#include "desk/processes/Processes.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowStack.h"

namespace desk {

using platform::NSWindow;

WindowTraits ApplicationWindows::traits(std::int64_t window) const {
    const NSWindow* shown = application.window(window);
    if (shown == nullptr) return {};
    const platform::WindowSettings& settings = shown->settings();
    return {settings.styleMask, settings.minSize, settings.maxSize};
}

void ApplicationWindows::bringForward(std::int64_t window) {
    if (traits(window).has(platform::NSWindowStyleMask::nonactivatingPanel)) return;
    processes.activate(application.processIdentifier());
    stack.raise(window);
}

template <typename Act>
void ApplicationWindows::post(std::int64_t window, Act act) {
    application.loop().mainAsync([this, window, act] {
        NSWindow* shown = application.window(window);
        const auto keepAlive = shown == nullptr ? nullptr : shown->weak_from_this().lock();
        if (shown != nullptr) act(*shown);
    });
}

void ApplicationWindows::makeKey(std::int64_t window) {
    post(window, [](NSWindow& shown) { shown.makeKeyWindow(); });
}

// Without a window to be seen, one that is minimised comes back.
void ApplicationWindows::reopen() {
    std::int64_t minimized = 0;
    for (const ServerWindow* window : stack.all()) {
        if (window->owner != application.processIdentifier()) continue;
        if (stack.isOnScreen(*window)) return;
        if (window->minimized) minimized = window->number;
    }
    if (minimized != 0) restore(minimized);
}

void ApplicationWindows::close(std::int64_t window) {
    post(window, [](NSWindow& shown) { shown.performClose(); });
}

void ApplicationWindows::minimize(std::int64_t window) {
    post(window, [](NSWindow& shown) { shown.miniaturize(); });
}

void ApplicationWindows::restore(std::int64_t window) {
    processes.activate(application.processIdentifier());
    post(window, [](NSWindow& shown) { shown.deminiaturize(); });
}

void ApplicationWindows::zoom(std::int64_t window) {
    if (const auto frame = stack.zoomedFrame(window, displays.screens(), traits(window).most)) setFrame(window, *frame);
}

void ApplicationWindows::setFrame(std::int64_t window, const platform::CGRect& frame) {
    post(window, [frame](NSWindow& shown) { shown.setFrame(frame, true); });
}

void ApplicationWindows::handle(std::int64_t window, const platform::NSEvent& event) {
    platform::NSEvent own = event;
    own.window = application.window(window);
    application.loop().postEvent(std::move(own));
}

}  // namespace desk
