#include "desk/ports/MenusPort.h"

#include <algorithm>
#include <utility>

#include "desk/menus/MenuLayer.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/windows/WindowStack.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::CGSize;

class MenuHandlePort final : public platform::MenuHandle {
public:
    MenuHandlePort(MenuLayer& theLayer, std::uint64_t theNumber) : layer(theLayer), number(theNumber) {}
    ~MenuHandlePort() override { layer.close(number); }
    MenuHandlePort(const MenuHandlePort&) = delete;
    MenuHandlePort& operator=(const MenuHandlePort&) = delete;

    bool isOpen() const override { return layer.isOpen(number); }

private:
    MenuLayer& layer;
    const std::uint64_t number;
};

class PopoverHandlePort final : public platform::PopoverHandle {
public:
    PopoverHandlePort(MenuLayer& theMenus, WindowStack& theWindows, platform::NSWindow& window, OpenPopover thePopover)
        : menus(theMenus), windows(theWindows), popover(std::make_shared<OpenPopover>(std::move(thePopover))) {
        popover->window = window.windowNumber();
    }
    ~PopoverHandlePort() override { menus.hide(*popover); }
    PopoverHandlePort(const PopoverHandlePort&) = delete;
    PopoverHandlePort& operator=(const PopoverHandlePort&) = delete;

    void show() {
        popover->content->setOnScreen(true);
        menus.show(popover);
    }
    void update(const CGRect& anchor, CGSize contentSize) override {
        const ServerWindow* window = windows.find(popover->window);
        if (window == nullptr) return;
        const CGSize most = menus.mostContent(anchor);
        popover->anchor = CGRectOffset(anchor, -window->frame.minX(), -window->frame.minY());
        popover->contentSize = {std::min(contentSize.width, most.width), std::min(contentSize.height, most.height)};
        popover->content->setSize(popover->contentSize);
        windows.changed();
    }

private:
    MenuLayer& menus;
    WindowStack& windows;
    const std::shared_ptr<OpenPopover> popover;
};

}  // namespace

std::unique_ptr<platform::MenuHandle> MenusPort::popUpBelow(const CGRect& anchor,
                                                            std::vector<platform::MenuItem> items) {
    if (application.isDead()) items.clear();
    const std::uint64_t number = menus.openBelow(application.processIdentifier(), anchor, std::move(items));
    return std::make_unique<MenuHandlePort>(menus, number);
}

std::unique_ptr<platform::MenuHandle> MenusPort::popUpAt(const platform::CGPoint& point,
                                                         std::vector<platform::MenuItem> items) {
    if (application.isDead()) items.clear();
    const std::uint64_t number = menus.openAt(application.processIdentifier(), point, std::move(items));
    return std::make_unique<MenuHandlePort>(menus, number);
}

std::unique_ptr<platform::PopoverHandle> MenusPort::showPopover(platform::NSWindow& window, const CGRect& anchor,
                                                                platform::RectEdge arrowEdge,
                                                                std::unique_ptr<platform::ContentView> content,
                                                                CGSize contentSize, std::function<void()> onDismiss) {
    OpenPopover popover;
    popover.owner = application.processIdentifier();
    popover.arrowEdge = arrowEdge;
    popover.content = std::move(content);
    popover.onDismiss = std::move(onDismiss);
    auto handle = std::make_unique<PopoverHandlePort>(menus, windows, window, std::move(popover));
    handle->update(anchor, contentSize);
    if (!application.isDead()) handle->show();
    return handle;
}

}  // namespace desk
