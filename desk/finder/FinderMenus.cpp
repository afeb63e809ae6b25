#include "desk/finder/FinderMenus.h"

#include <utility>

#include "desk/finder/Finder.h"
#include "desk/finder/FinderCommands.h"
#include "desk/windows/WindowStack.h"

namespace desk {

namespace {

using platform::MenuItem;

constexpr const char* folderWindowsMenu = "Window";

MenuItem separator() {
    MenuItem item;
    item.isSeparator = true;
    return item;
}

// Wherever it is: minimised, on another space.
void showFolderWindow(Finder& finder, WindowStack& windows, std::int64_t number) {
    finder.restore(number);
    if (const ServerWindow* shown = windows.find(number)) windows.switchToSpace(shown->space);
    finder.raise(number);
}

void addFolderWindows(Finder& finder, WindowStack& windows, std::vector<MenuItem>& items) {
    bool isFirst = true;
    for (const FinderWindow* window : finder.windows()) {
        if (window->kind != FinderWindowKind::folder) continue;
        if (std::exchange(isFirst, false)) items.push_back(separator());
        items.push_back({window->name, "", true, false,
                         [&finder, &windows, number = window->number] { showFolderWindow(finder, windows, number); }});
    }
}

}  // namespace

std::vector<std::string> finderMenus() {
    std::vector<std::string> menus;
    for (const FinderCommand& command : finderCommands())
        if (menus.empty() || menus.back() != command.menu) menus.emplace_back(command.menu);
    return menus;
}

std::vector<MenuItem> finderMenuItems(Finder& finder, WindowStack& windows, const std::string& menu) {
    std::vector<MenuItem> items;
    for (const FinderCommand& command : finderCommands()) {
        if (command.menu != menu) continue;
        if (command.beginsGroup) items.push_back(separator());
        items.push_back({command.title, "", command.isPossible(finder), false, [&finder, &command] {
                             if (command.isPossible(finder)) command.act(finder);
                         }});
    }
    if (menu == folderWindowsMenu) addFolderWindows(finder, windows, items);
    return items;
}

}  // namespace desk
