#include "desk/finder/FinderCommands.h"

#include <string>

#include "desk/Machine.h"
#include "desk/finder/FinderBrowser.h"

namespace desk {

namespace {

const FinderWindow* frontWindow(Machine& machine) {
    return machine.finder.front();
}

std::int64_t front(Machine& machine) {
    return machine.finder.mainWindow();
}

bool always(Machine& /*machine*/) {
    return true;
}

bool hasFront(Machine& machine) {
    return front(machine) != 0;
}

bool hasSelection(Machine& machine) {
    const FinderWindow* window = frontWindow(machine);
    return window != nullptr && !window->selection.empty();
}

bool canOpen(Machine& machine) {
    return hasSelection(machine) && frontWindow(machine)->selection.size() <= mostOpenedAtOnce;
}

bool canShowInfo(Machine& machine) {
    const FinderWindow* window = frontWindow(machine);
    return window != nullptr && window->target && window->selection.size() <= mostOpenedAtOnce;
}

bool hasFolder(Machine& machine) {
    const FinderWindow* window = frontWindow(machine);
    return window != nullptr && window->target.has_value();
}

bool hasEnclosingFolder(Machine& machine) {
    const FinderWindow* window = frontWindow(machine);
    return window != nullptr && window->target && *window->target != "/";
}

bool canGoBack(Machine& machine) {
    return machine.finder.browser().canGoBack(front(machine));
}

bool canGoForward(Machine& machine) {
    return machine.finder.browser().canGoForward(front(machine));
}

bool canBeMoved(Machine& machine) {
    const FinderWindow* window = frontWindow(machine);
    return window != nullptr && !window->fullScreen;
}

// Finder's front window, an info panel too.
std::int64_t topmost(Machine& machine) {
    for (const ServerWindow* shown : machine.windows.onScreen())
        if (shown->owner == machine.finder.pid()) return shown->number;
    return 0;
}

bool hasTopmost(Machine& machine) {
    return topmost(machine) != 0;
}

void showInfo(Machine& machine) {
    const FinderWindow* window = frontWindow(machine);
    if (window == nullptr) return;
    std::vector<std::string> subjects = window->selection;
    if (subjects.empty() && window->target) subjects.push_back(*window->target);
    for (const std::string& subject : subjects) machine.finder.openInfoPanel(subject);
}

void toggleFullScreen(Machine& machine) {
    if (const FinderWindow* window = frontWindow(machine))
        machine.finder.setFullScreen(window->number, !window->fullScreen);
}

// In the front window, or in a new one when there is none.
void goTo(Machine& machine, const std::string& path) {
    if (!machine.finder.go(front(machine), path)) machine.finder.open(path);
}

// The window furthest back comes forward, so that one after the other has its turn.
void cycleWindows(Machine& machine) {
    std::int64_t last = 0;
    for (const FinderWindow* window : machine.finder.windows())
        if (window->kind == FinderWindowKind::folder &&
            machine.windows.isOnScreen(*machine.windows.find(window->number)))
            last = window->number;
    if (last != 0) machine.finder.raise(last);
}

}  // namespace

const std::vector<FinderCommand>& finderCommands() {
    static const std::vector<FinderCommand> table{
        {"File", "New Finder Window", "cmd+n", [](Machine& m) { m.finder.open(m.disk.home()); }, always},
        {"File", "Open", "cmd+o", [](Machine& m) { m.finder.browser().openSelection(front(m)); }, canOpen},
        {"File", "Close Window", "cmd+w", [](Machine& m) { m.finder.close(topmost(m)); }, hasTopmost},
        {"File", "Get Info", "cmd+i", showInfo, canShowInfo, true},

        {"Edit", "Select All", "cmd+a", [](Machine& m) { m.finder.browser().selectAll(front(m)); }, hasFolder},
        {"Edit", "Deselect All", "option+cmd+a", [](Machine& m) { m.finder.browser().selectNothing(front(m)); },
         hasSelection},

        {"View", "Enter or Exit Full Screen", "ctrl+cmd+f", toggleFullScreen, hasFront},

        {"Go", "Back", "cmd+[", [](Machine& m) { m.finder.browser().goBack(front(m)); }, canGoBack},
        {"Go", "Forward", "cmd+]", [](Machine& m) { m.finder.browser().goForward(front(m)); }, canGoForward},
        {"Go", "Enclosing Folder", "cmd+up", [](Machine& m) { m.finder.browser().goUp(front(m)); }, hasEnclosingFolder},
        {"Go", "Documents", "shift+cmd+o", [](Machine& m) { goTo(m, m.disk.home() + "/Documents"); }, always, true},
        {"Go", "Desktop", "shift+cmd+d", [](Machine& m) { goTo(m, m.disk.home() + "/Desktop"); }, always},
        // Its usual key holds Command and L, which belong to the path field of whoever stands above the windows.
        {"Go", "Downloads", "", [](Machine& m) { goTo(m, m.disk.home() + "/Downloads"); }, always},
        {"Go", "Home", "shift+cmd+h", [](Machine& m) { goTo(m, m.disk.home()); }, always},
        {"Go", "Applications", "shift+cmd+a", [](Machine& m) { goTo(m, "/Applications"); }, always},

        {"Window", "Minimise", "cmd+m", [](Machine& m) { m.finder.minimize(front(m)); }, hasFront},
        {"Window", "Zoom", "", [](Machine& m) { m.finder.zoom(front(m)); }, canBeMoved},
        {"Window", "Cycle Through Windows", "cmd+`", cycleWindows, hasFront},
    };
    return table;
}

}  // namespace desk
