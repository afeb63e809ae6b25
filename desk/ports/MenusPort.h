// Menus and popovers of one application, on the machine's layer above all windows.
#pragma once

#include <cstdint>

#include "platform/Menus.h"

namespace desk {

class LaunchedApplication;
class MenuLayer;
class WindowStack;

class MenusPort final : public platform::Menus {
public:
    MenusPort(MenuLayer& theMenus, WindowStack& theWindows, LaunchedApplication& theApplication)
        : menus(theMenus), windows(theWindows), application(theApplication) {}

    std::unique_ptr<platform::MenuHandle> popUpBelow(const platform::CGRect& anchor,
                                                     std::vector<platform::MenuItem> items) override;
    std::unique_ptr<platform::MenuHandle> popUpAt(const platform::CGPoint& point,
                                                  std::vector<platform::MenuItem> items) override;
    std::unique_ptr<platform::PopoverHandle> showPopover(platform::NSWindow& window, const platform::CGRect& anchor,
                                                         platform::RectEdge arrowEdge,
                                                         std::unique_ptr<platform::ContentView> content,
                                                         platform::CGSize contentSize,
                                                         std::function<void()> onDismiss) override;

private:
    MenuLayer& menus;
    WindowStack& windows;
    LaunchedApplication& application;
};

}  // namespace desk
