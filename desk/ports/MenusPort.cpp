#include "desk/ports/MenusPort.h"

#include <algorithm>
#include <utility>

#include "desk/menus/MenuBar.h"
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
    void update(std::vector<platform::MenuItem> items) override { layer.update(number, std::move(items)); }

private:
    MenuLayer& layer;
    const std::uint64_t number;
};

class StatusItemPort final : public platform::StatusItem {
public:
    StatusItemPort(MenuBar& theBar, MenuLayer& theMenus, LaunchedApplication& theApplication, BarItem theItem)
        : bar(theBar),
          menus(theMenus),
          application(theApplication),
          item(std::make_shared<BarItem>(std::move(theItem))) {
        if (!application.isDead()) bar.add(item);
    }
    ~StatusItemPort() override { bar.remove(*item); }
    StatusItemPort(const StatusItemPort&) = delete;
    StatusItemPort& operator=(const StatusItemPort&) = delete;

    std::unique_ptr<platform::MenuHandle> popUpMenu(std::vector<platform::MenuItem> items) override {
        if (application.isDead()) items.clear();
        return std::make_unique<MenuHandlePort>(menus, bar.openMenuOf(*item, std::move(items)));
    }

private:
    MenuBar& bar;
    MenuLayer& menus;
    LaunchedApplication& application;
    const std::shared_ptr<BarItem> item;
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
        popover->content->setOrderedIn(true);
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

std::unique_ptr<platform::StatusItem> MenusPort::addStatusItem(const platform::NSImage& image,
                                                               const std::string& accessibilityLabel,
                                                               std::function<void()> pressed) {
    BarItem item{application.processIdentifier(), image, accessibilityLabel, nullptr};
    item.pressed = [this, pressed = std::move(pressed)] { application.loop().mainAsync(pressed); };
    return std::make_unique<StatusItemPort>(menuBar, menus, application, std::move(item));
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
