// Draws what of the desktop is no window: menu bar, Dock, alerts; and the plain windows of other processes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desk/display/DrawingBuilder.h"
#include "desk/display/WindowChrome.h"
#include "desk/menus/MenuBar.h"
#include "desk/processes/Permissions.h"
#include "desk/system/AlertLayout.h"
#include "desk/system/Dock.h"
#include "platform/Geometry.h"

namespace desk {

struct MenuBarContent {
    std::vector<MenuBarTitle> titles;
    std::string clock;
};

void drawMenuBar(DrawingBuilder& builder, platform::CGSize size, const MenuBarContent& content);
// In the middle of the strip of that size at the bottom of the screen.
void drawDock(DrawingBuilder& builder, platform::CGSize size, const std::vector<DockItem>& items);
// The alert's own rectangle at (0, 0); places its buttons as the layout says.
void drawAlert(DrawingBuilder& builder, const SystemAlert& alert, const AlertLayout& layout);
// With the application's icon, and its name or identifier.
void drawOtherWindow(DrawingBuilder& builder, platform::CGSize size, std::string_view title,
                     std::string_view application, std::string_view note, WindowLook look);

}  // namespace desk
