// Told what happens to one window, before it happens. It lives longer than the window or is taken off it.
// It can't refuse.
#pragma once

namespace platform {

class NSWindowDelegate {
public:
    virtual ~NSWindowDelegate() = default;
    virtual void windowWillClose() {}
};

}  // namespace platform
