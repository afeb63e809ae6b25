#include "desk/processes/WindowMenus.h"

#include "desk/processes/Processes.h"
#include "desk/windows/WindowKeeper.h"
#include "desk/windows/WindowStack.h"

namespace desk {

namespace {

constexpr const char* fileMenu = "File";
constexpr const char* windowMenu = "Window";

std::vector<const ServerWindow*> windowsOf(const WindowStack& windows, std::int32_t process) {
    std::vector<const ServerWindow*> own = windows.onScreen();
    std::erase_if(own, [process](const ServerWindow* window) { return window->owner != process; });
    return own;
}

}  // namespace

std::vector<std::string> windowMenus() {
    return {fileMenu, windowMenu};
}

std::vector<platform::MenuItem> windowMenuItems(Processes& processes, WindowStack& windows, std::int32_t process,
                                                const std::string& menu) {
    const auto own = windowsOf(windows, process);
    std::vector<platform::MenuItem> items;
    if (menu.empty())
        items.push_back({"Quit " + processes.find(process)->name, "", true, false,
                         [&processes, process] { processes.end(process, Ending::asked); }});
    if (menu == fileMenu)
        items.push_back({"Close Window", "", !own.empty(), false, [&processes, &windows, process] {
                             const auto left = windowsOf(windows, process);
                             if (!left.empty()) processes.keeperOf(process).close(left.front()->number);
                         }});
    if (menu == windowMenu)
        for (const ServerWindow* window : own)
            items.push_back(
                {window->title, "", true, false, [&windows, number = window->number] { windows.raise(number); }});
    return items;
}

}  // namespace desk
