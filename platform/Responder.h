// What can have the keyboard within a window, or be pressed in it: a view of its content. A window knows at most one first responder and hands it the keys; it owns none.
// Main thread only.
#pragma once

#include "platform/Events.h"

namespace platform {

class NSResponder {
public:
    virtual ~NSResponder() = default;

    // Called when a window makes this its first responder; false refuses.
    virtual bool becomeFirstResponder() { return true; }
    // Called when another one is to take over; false refuses.
    virtual bool resignFirstResponder() { return true; }
    virtual void keyDown(const NSEvent& /*event*/) {}
    virtual void mouseDown(const NSEvent& /*event*/) {}
};

}  // namespace platform
