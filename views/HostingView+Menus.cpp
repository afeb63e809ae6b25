// What a host puts up beside its window: menus on a press, popovers while they are presented.
#include <utility>

#include "views/HostingView.h"
#include "views/MenuItems.h"
#include "views/PresentedPopover.h"
#include "views/Reconciler.h"
#include "views/nodes/PopoverNode.h"

namespace views {

namespace {

platform::RectEdge screenEdge(Edge edge) {
    switch (edge) {
    case Edge::top:
        return platform::RectEdge::maxY;
    case Edge::leading:
        return platform::RectEdge::minX;
    case Edge::trailing:
        return platform::RectEdge::maxX;
    default:
        return platform::RectEdge::minY;
    }
}

bool isContextMenu(const LayoutItem& item) {
    return item.node != nullptr && item.node->contextMenu() != nullptr;
}

}  // namespace

CGRect HostingView::convertToScreen(const CGRect& rect) const {
    const CGPoint origin = window->convertPointToScreen({rect.minX(), size.height - rect.maxY()});
    return {origin, rect.size};
}

// An entry's action keeps what it was declared in, so the views may be rebuilt while the menu is open.
std::vector<platform::MenuItem> HostingView::evaluateMenu(const std::function<View()>& entries) {
    if (!entries) return {};
    const auto content = std::make_shared<View>(entries());
    Reconciler(link, work).update(*content, nullptr);
    std::vector<platform::MenuItem> items = menuItems(*content);
    for (platform::MenuItem& item : items)
        if (item.action)
            item.action = lifetime.guard(
                [this, kept = std::pair(tree, content), action = std::move(item.action)] { run(action); });
    return items;
}

void HostingView::openMenu(const LayoutItem& item, const std::function<View()>& entries) {
    if (window == nullptr) return;
    menu.reset();
    menu = platform.menus.popUpBelow(convertToScreen(item.frame), evaluateMenu(entries));
}

bool HostingView::openContextMenu(const platform::NSEvent& event) {
    const auto item = frames.frontmost(convertFromWindow(event.locationInWindow), isContextMenu);
    if (!item || window == nullptr) return false;
    menu.reset();
    menu = platform.menus.popUpAt(window->convertPointToScreen(event.locationInWindow),
                                  evaluateMenu(*frames[*item].node->contextMenu()));
    return true;
}

void HostingView::rightMouseDown(const platform::NSEvent& event) {
    openContextMenu(event);
}

// Those whose place is gone, or that are no longer presented, are dropped.
void HostingView::presentPopovers() {
    auto before = std::exchange(popovers, {});
    if (window == nullptr) return;
    for (const std::int32_t index : frames.popovers) {
        const LayoutItem& item = frames[index];
        const Popover& declared = *item.node->popover();
        link->isEvaluating = true;
        const bool isPresented = declared.isPresented.get();
        link->isEvaluating = false;
        if (!isPresented) continue;
        const std::string place = frames.placeOf(index);
        const auto known = before.find(place);
        // Dismissed, and presented again in the same turn.
        if (known == before.end() || !known->second->handle)
            present(place, item, declared);
        else
            refresh(*popovers.emplace(place, std::move(known->second)).first->second, convertToScreen(item.frame),
                    declared);
    }
}

void HostingView::present(const std::string& place, const LayoutItem& item, const Popover& declared) {
    auto popover = std::make_unique<PresentedPopover>();
    popover->root = std::make_shared<PopoverRoot>();
    popover->root->content = declared.content;
    auto host = std::make_unique<HostingView>(platform, popover->root, HostRole::popover);
    popover->host = host.get();
    const CGSize contentSize = host->idealSize();
    popover->handle =
        platform.menus.showPopover(*window, convertToScreen(item.frame), screenEdge(declared.arrowEdge),
                                   std::move(host), contentSize, lifetime.guard([this, place] { dismissed(place); }));
    popovers.emplace(place, std::move(popover));
}

void HostingView::refresh(PresentedPopover& popover, const CGRect& anchor, const Popover& declared) {
    popover.root->content = declared.content;
    popover.host->invalidate();
    popover.host->update();
    popover.handle->update(anchor, popover.host->idealSize());
}

// By value: the callback that holds the place may go with the handle.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void HostingView::dismissed(std::string place) {
    const auto known = popovers.find(place);
    if (known == popovers.end()) return;
    known->second->handle.reset();
    for (const std::int32_t index : frames.popovers) {
        if (frames.placeOf(index) != place) continue;
        const Binding<bool> isPresented = frames[index].node->popover()->isPresented;
        run([&isPresented] { isPresented.set(false); });
        break;
    }
    scheduleUpdate();
}

}  // namespace views
