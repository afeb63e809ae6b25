// A view that keeps a state of its own and takes the keyboard, inside the declarative tree (see NSViewRepresentable.h): a text field. The host gives it a frame and its window;
// it draws itself and says when it looks different. Owned through std::shared_ptr.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/Drawing.h"
#include "platform/Responder.h"
#include "platform/Windows.h"

namespace views {

class NSView : public platform::NSResponder, public std::enable_shared_from_this<NSView> {
public:
    NSView() = default;
    NSView(const NSView&) = delete;
    NSView& operator=(const NSView&) = delete;
    ~NSView() override;

    // Null before the host has laid it out in a window, and once it is taken out of it.
    platform::NSWindow* window() const { return ownWindow; }
    // In the host's view space.
    const platform::CGRect& frame() const { return ownFrame; }
    bool isFirstResponder() const { return ownWindow != nullptr && ownWindow->firstResponder() == this; }

    // The two halves of what it looks like: all shapes of a host are drawn before all its text.
    virtual void drawShapes(platform::Drawing& into) const = 0;
    virtual void drawText(platform::Drawing& into) const = 0;

    // Its value for assistive tools, scripts and tests.
    virtual std::string accessibilityValue() const { return {}; }

    // Called by the host. Leaving its window gives the keyboard up.
    void moveToWindow(platform::NSWindow* window, std::function<void()> needsDisplay);
    virtual void setFrame(const platform::CGRect& frame);

protected:
    void setNeedsDisplay() const;

private:
    platform::NSWindow* ownWindow = nullptr;
    platform::CGRect ownFrame;
    std::function<void()> tellHost;
};

}  // namespace views
