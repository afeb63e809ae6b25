// The NSViews in a host's tree: they get their frames and the window after each layout, and lose the window with their place.
#include <algorithm>
#include <utility>

#include "views/HostingView.h"

namespace views {

namespace {

const std::shared_ptr<NSView>& viewOf(const LayoutItem& item) {
    return item.view->as<RepresentableContent>().made->view;
}

}  // namespace

void HostingView::placeWrappedViews() {
    std::vector<std::weak_ptr<NSView>> placed;
    frames.forEach([&](std::int32_t, const LayoutItem& item) {
        if (item.kind != ItemKind::wrapped) return;
        viewOf(item)->setFrame(item.frame);
        placed.push_back(viewOf(item));
    });
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

void HostingView::pressWrappedView(const LayoutItem& item, const platform::NSEvent& event) {
    const auto view = viewOf(item);
    view->mouseDown(event);
}

const NSView* HostingView::wrappedView(std::string_view identifier) const {
    const NSView* found = nullptr;
    frames.forEach([&](std::int32_t, const LayoutItem& item) {
        const bool isNamed = item.identifier != nullptr && item.identifier == identifier;
        if (isNamed && item.kind == ItemKind::wrapped) found = viewOf(item).get();
    });
    return found;
}

}  // namespace views
