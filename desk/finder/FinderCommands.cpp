#include "desk/finder/FinderCommands.h"

#include <string>

#include "desk/finder/Finder.h"
#include "desk/finder/FinderBrowser.h"

namespace desk {

namespace {

const FinderWindow* frontWindow(Finder& finder) {
    return finder.front();
}

std::int64_t front(Finder& finder) {
    return finder.mainWindow();
}

bool always(Finder& /*finder*/) {
    return true;
}

bool hasFront(Finder& finder) {
    return front(finder) != 0;
}

bool hasSelection(Finder& finder) {
    const FinderWindow* window = frontWindow(finder);
    return window != nullptr && !window->selection.empty();
}

bool canOpen(Finder& finder) {
    return hasSelection(finder) && frontWindow(finder)->selection.size() <= mostOpenedAtOnce;
}

bool canShowInfo(Finder& finder) {
    const FinderWindow* window = frontWindow(finder);
    return window != nullptr && window->target && window->selection.size() <= mostOpenedAtOnce;
}

bool hasFolder(Finder& finder) {
    const FinderWindow* window = frontWindow(finder);
    return window != nullptr && window->target.has_value();
}

bool hasEnclosingFolder(Finder& finder) {
    const FinderWindow* window = frontWindow(finder);
    return window != nullptr && window->target && *window->target != "/";
}

bool canGoBack(Finder& finder) {
    return finder.browser().canGoBack(front(finder));
}

bool canGoForward(Finder& finder) {
    return finder.browser().canGoForward(front(finder));
}

bool canBeMoved(Finder& finder) {
    const FinderWindow* window = frontWindow(finder);
    return window != nullptr && !window->fullScreen;
}

// Finder's front window, an info panel too.
std::int64_t topmost(Finder& finder) {
    const auto windows = finder.windows();
    return windows.empty() || !finder.isOnScreen(*windows.front()) ? 0 : windows.front()->number;
}

bool hasTopmost(Finder& finder) {
    return topmost(finder) != 0;
}

void showInfo(Finder& finder) {
    const FinderWindow* window = frontWindow(finder);
    if (window == nullptr) return;
    std::vector<std::string> subjects = window->selection;
    if (subjects.empty() && window->target) subjects.push_back(*window->target);
    for (const std::string& subject : subjects) finder.openInfoPanel(subject);
}

void toggleFullScreen(Finder& finder) {
    if (const FinderWindow* window = frontWindow(finder)) finder.setFullScreen(window->number, !window->fullScreen);
}

// In the front window, or in a new one when there is none.
void goTo(Finder& finder, const std::string& path) {
    if (!finder.go(front(finder), path)) finder.open(path);
}

// The window furthest back comes forward, so that one after the other has its turn.
void cycleWindows(Finder& finder) {
    std::int64_t last = 0;
    for (const FinderWindow* window : finder.windows())
        if (window->kind == FinderWindowKind::folder && finder.isOnScreen(*window)) last = window->number;
    if (last != 0) finder.raise(last);
}

}  // namespace

const std::vector<FinderCommand>& finderCommands() {
    static const std::vector<FinderCommand> table{
        {"File", "New Finder Window", "cmd+n", [](Finder& f) { f.open(f.home()); }, always},
        {"File", "Open", "cmd+o", [](Finder& f) { f.browser().openSelection(front(f)); }, canOpen},
        {"File", "Close Window", "cmd+w", [](Finder& f) { f.close(topmost(f)); }, hasTopmost},
        {"File", "Get Info", "cmd+i", showInfo, canShowInfo, true},

        {"Edit", "Select All", "cmd+a", [](Finder& f) { f.browser().selectAll(front(f)); }, hasFolder},
        {"Edit", "Deselect All", "option+cmd+a", [](Finder& f) { f.browser().selectNothing(front(f)); }, hasSelection},

        {"View", "Enter or Exit Full Screen", "ctrl+cmd+f", toggleFullScreen, hasFront},

        {"Go", "Back", "cmd+[", [](Finder& f) { f.browser().goBack(front(f)); }, canGoBack},
        {"Go", "Forward", "cmd+]", [](Finder& f) { f.browser().goForward(front(f)); }, canGoForward},
        {"Go", "Enclosing Folder", "cmd+up", [](Finder& f) { f.browser().goUp(front(f)); }, hasEnclosingFolder},
        {"Go", "Documents", "shift+cmd+o", [](Finder& f) { goTo(f, f.home() + "/Documents"); }, always, true},
        {"Go", "Desktop", "shift+cmd+d", [](Finder& f) { goTo(f, f.home() + "/Desktop"); }, always},
        // Its usual key holds Command and L, which belong to the path field of whoever stands above the windows.
        {"Go", "Downloads", "", [](Finder& f) { goTo(f, f.home() + "/Downloads"); }, always},
        {"Go", "Home", "shift+cmd+h", [](Finder& f) { goTo(f, f.home()); }, always},
        {"Go", "Applications", "shift+cmd+a", [](Finder& f) { goTo(f, "/Applications"); }, always},

        {"Window", "Minimise", "cmd+m", [](Finder& f) { f.minimize(front(f)); }, hasFront},
        {"Window", "Zoom", "", [](Finder& f) { f.zoom(front(f)); }, canBeMoved},
        {"Window", "Cycle Through Windows", "cmd+`", cycleWindows, hasFront},
    };
    return table;
}

}  // namespace desk
