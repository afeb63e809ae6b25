// Menus and popovers of one application, on the machine's layer above all windows, and its items in the menu bar.
#pragma once

#include <cstdint>

#include "platform/Menus.h"

namespace desk {

class LaunchedApplication;
class MenuBar;
class MenuLayer;
class WindowStack;

class MenusPort final : public platform::Menus {
public:
    MenusPort(MenuLayer& theMenus, MenuBar& theMenuBar, WindowStack& theWindows, LaunchedApplication& theApplication)
        : menus(theMenus), menuBar(theMenuBar), windows(theWindows), application(theApplication) {}

    std::unique_ptr<platform::MenuHandle> popUpBelow(const platform::CGRect& anchor,
                                                     std::vector<platform::MenuItem> items) override;
    std::unique_ptr<platform::MenuHandle> popUpAt(const platform::CGPoint& point,
                                                  std::vector<platform::MenuItem> items) override;
    std::unique_ptr<platform::StatusItem> addStatusItem(const platform::NSImage& image,
                                                        const std::string& accessibilityLabel,
                                                        std::function<void()> pressed) override;
    std::unique_ptr<platform::PopoverHandle> showPopover(platform::NSWindow& window, const platform::CGRect& anchor,
                                                         platform::RectEdge arrowEdge,
                                                         std::unique_ptr<platform::ContentView> content,
                                                         platform::CGSize contentSize,
                                                         std::function<void()> onDismiss) override;

private:
    MenuLayer& menus;
    MenuBar& menuBar;
    WindowStack& windows;
    LaunchedApplication& application;
};

}  // namespace desk
