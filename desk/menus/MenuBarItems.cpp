// What the menus of the menu bar hold: Finder's commands, and for applications of which nothing but their windows is known, closing and quitting.
#include <utility>

#include "desk/Machine.h"
#include "desk/finder/FinderCommands.h"
#include "desk/menus/MenuBar.h"

namespace desk {

namespace {

using platform::MenuItem;

MenuItem separator() {
    MenuItem item;
    item.isSeparator = true;
    return item;
}

bool isFindersProcess(Machine& machine, const Process& process) {
    return machine.finder.isRunning() && process.processIdentifier == machine.finder.pid();
}

void addFinderWindows(Machine& machine, std::vector<MenuItem>& items) {
    bool isFirst = true;
    for (const FinderWindow* window : machine.finder.windows()) {
        if (window->kind != FinderWindowKind::folder) continue;
        if (std::exchange(isFirst, false)) items.push_back(separator());
        items.push_back({window->name, "", true, false, [&machine, number = window->number] {
                             machine.finder.restore(number);
                             if (const ServerWindow* shown = machine.windows.find(number))
                                 machine.windows.switchToSpace(shown->space);
                             machine.finder.raise(number);
                         }});
    }
}

std::vector<MenuItem> finderItems(Machine& machine, const std::string& title) {
    std::vector<MenuItem> items;
    for (const FinderCommand& command : finderCommands()) {
        if (command.menu != title) continue;
        if (command.beginsGroup) items.push_back(separator());
        items.push_back({command.title, "", command.isPossible(machine.finder), false, [&machine, &command] {
                             if (command.isPossible(machine.finder)) command.act(machine.finder);
                         }});
    }
    if (title == "Window") addFinderWindows(machine, items);
    return items;
}

std::vector<const ServerWindow*> windowsOf(const Machine& machine, std::int32_t process) {
    std::vector<const ServerWindow*> own;
    for (const ServerWindow* window : machine.windows.onScreen())
        if (window->owner == process) own.push_back(window);
    return own;
}

// An agent's menu bar holds its name alone.
bool isAgent(Machine& machine, const Process& process) {
    return machine.applications.find(process.processIdentifier) != nullptr &&
           process.policy != platform::NSApplicationActivationPolicy::regular;
}

std::vector<MenuItem> otherItems(Machine& machine, const Process& process, const std::string& title) {
    const std::int32_t owner = process.processIdentifier;
    const auto own = windowsOf(machine, owner);
    std::vector<MenuItem> items;
    if (title.empty())
        items.push_back({"Quit " + process.name, "", true, false,
                         [&machine, owner] { machine.processes.end(owner, Ending::asked); }});
    if (title == "File")
        items.push_back({"Close Window", "", !own.empty(), false, [&machine, owner] {
                             const auto left = windowsOf(machine, owner);
                             if (!left.empty()) machine.processes.keeperOf(owner).close(left.front()->number);
                         }});
    if (title == "Window")
        for (const ServerWindow* window : own)
            items.push_back({window->title, "", true, false,
                             [&machine, number = window->number] { machine.windows.raise(number); }});
    return items;
}

}  // namespace

std::vector<std::string> menuBarMenus(Machine& machine, const Process& frontmost) {
    if (isFindersProcess(machine, frontmost)) return {frontmost.name, "File", "Edit", "View", "Go", "Window"};
    if (isAgent(machine, frontmost)) return {frontmost.name};
    return {frontmost.name, "File", "Window"};
}

std::vector<platform::MenuItem> menuBarItems(Machine& machine, const Process& frontmost, const std::string& title) {
    if (isFindersProcess(machine, frontmost)) return finderItems(machine, title);
    if (isAgent(machine, frontmost)) return {};
    return otherItems(machine, frontmost, title);
}

}  // namespace desk
