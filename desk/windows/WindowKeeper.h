// A process towards the person at the machine: what may be done to its windows by their frames, and what it makes of events. Windows go by number.
// It takes what it is given; where an event goes is decided before.
#pragma once

#include <cstdint>

#include "platform/Events.h"
#include "platform/Geometry.h"
#include "platform/WindowSettings.h"

namespace desk {

struct WindowTraits {
    unsigned styleMask = platform::NSWindowStyleMask::borderless;
    // Of the frame, when it is resized by hand.
    platform::CGSize least;
    platform::CGSize most{1e6, 1e6};
    bool isFullScreen = false;

    bool has(unsigned styleBit) const { return (styleMask & styleBit) != 0; }
    bool isResizable() const { return has(platform::NSWindowStyleMask::resizable) && !isFullScreen; }
};

class WindowKeeper {
public:
    virtual ~WindowKeeper() = default;

    virtual WindowTraits traits(std::int64_t window) const = 0;
    // A press on the window: it comes forward with its process. Window 0 is the desktop.
    virtual void bringForward(std::int64_t window) = 0;
    // The press was on the frame, so that the content won't hear of it.
    virtual void makeKey(std::int64_t /*window*/) {}

    // The application was opened once more, from the Dock or by another one, and is in front now.
    virtual void reopen() {}

    virtual void close(std::int64_t window) = 0;
    virtual void minimize(std::int64_t window) = 0;
    // From the Dock.
    virtual void restore(std::int64_t window) = 0;
    // As large as the screen has room for, and back.
    virtual void zoom(std::int64_t window) = 0;
    virtual void pressZoomButton(std::int64_t window) { zoom(window); }
    virtual void setFrame(std::int64_t window, const platform::CGRect& frame) = 0;

    // Whether the content has something to press there, in the title bar; from the window's top left corner, y downward.
    virtual bool hasContentInTitleBar(std::int64_t /*window*/, const platform::CGPoint& /*point*/) const {
        return false;
    }
    // Mouse on the content, from the press to the release, and keys. The location is on the screen; the window is 0 for keys that go to no window, and on the desktop.
    virtual void handle(std::int64_t window, const platform::NSEvent& event) = 0;
    // The press of the content has become a drag of the window.
    virtual void letGo() {}
};

// Who goes on clicking clicks double again.
inline bool isSecondOfDouble(const platform::NSEvent& press) {
    return press.clickCount > 0 && press.clickCount % 2 == 0;
}

}  // namespace desk
