#include "views/NSView.h"

#include <utility>

namespace views {

NSView::~NSView() {
    if (isFirstResponder()) ownWindow->forgetFirstResponder();
}

void NSView::moveToWindow(platform::NSWindow* window, std::function<void()> needsDisplay) {
    if (window != ownWindow && isFirstResponder()) {
        ownWindow->makeFirstResponder(nullptr);
        if (isFirstResponder()) ownWindow->forgetFirstResponder();
    }
    ownWindow = window;
    tellHost = std::move(needsDisplay);
}

void NSView::setFrame(const platform::CGRect& frame) {
    ownFrame = frame;
}

void NSView::setNeedsDisplay() const {
    if (tellHost) tellHost();
}

}  // namespace views
