// The NSViews in a host's tree: they get their frames and the window after each layout, and lose the window with their place.
#include <algorithm>
#include <utility>

#include "views/HostingView.h"

namespace views {

void HostingView::placeWrappedViews() {
    std::vector<std::weak_ptr<NSView>> placed;
    for (const std::int32_t index : frames.wrappedViews) {
        NSView& view = *frames[index].node->wrappedView();
        view.setFrame(frames[index].frame);
        placed.push_back(view.weak_from_this());
    }
    std::swap(placed, wrappedViews);
    moveWrappedViews();
    // One may live on without its place: a menu that is open keeps the tree that declared it.
    for (const auto& before : placed) {
        const auto view = before.lock();
        const bool isPlaced = std::any_of(wrappedViews.begin(), wrappedViews.end(),
                                          [&](const auto& each) { return each.lock() == view; });
        if (view && !isPlaced) view->moveToWindow(nullptr, nullptr);
    }
}

void HostingView::moveWrappedViews() {
    for (const auto& each : wrappedViews)
        if (const auto view = each.lock()) view->moveToWindow(window, lifetime.guard([this] { setNeedsDisplay(); }));
}

void HostingView::setNeedsDisplay() {
    needsDrawing = true;
    version += 1;
    if (window != nullptr) window->setNeedsDisplay();
}

const NSView* HostingView::wrappedView(std::string_view identifier) const {
    for (const std::int32_t index : frames.wrappedViews)
        if (frames[index].identifier != nullptr && frames[index].identifier == identifier)
            return frames[index].node->wrappedView();
    return nullptr;
}

}  // namespace views
