// Where Finder's windows are: stacking, frames, full screen.
#include <algorithm>
#include <cmath>

#include "desk/finder/Finder.h"
#include "desk/finder/FinderAccessibility.h"
#include "desk/processes/Processes.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowStack.h"

namespace desk {

using platform::CGRect;
using platform::NSWindowOrderingMode;

bool Finder::isFrontmost() const {
    const Process* frontmost = neighbours.processes.frontmost();
    return frontmost != nullptr && frontmost->processIdentifier == processIdentifier;
}

bool Finder::raise(std::int64_t number) {
    if (entry(number) == nullptr) return false;
    bringForward(number);
    mainWindowMayHaveChanged();
    return true;
}

void Finder::bringForward(std::int64_t number) {
    if (isFrontmost()) {
        neighbours.windows.raise(number);
        return;
    }
    for (const ServerWindow* shown : neighbours.windows.onScreen()) {
        if (shown->owner != processIdentifier) continue;
        if (shown->number == number) return;
        break;
    }
    const int space = neighbours.windows.find(number)->space;
    placeAmongOthers(number);
    neighbours.windows.setSpace(number, space);
}

// Finder isn't frontmost: in front of its other windows, or behind those of whoever is.
void Finder::placeAmongOthers(std::int64_t number) {
    const Process* frontmost = neighbours.processes.frontmost();
    const ServerWindow* ownFront = nullptr;
    const ServerWindow* othersBack = nullptr;
    for (const ServerWindow* shown : neighbours.windows.onScreen()) {
        if (shown->number == number || shown->level != 0) continue;
        if (shown->owner == processIdentifier && ownFront == nullptr) ownFront = shown;
        if (frontmost != nullptr && shown->owner == frontmost->processIdentifier) othersBack = shown;
    }
    if (ownFront != nullptr) {
        neighbours.windows.order(number, NSWindowOrderingMode::above, ownFront->number);
    } else if (othersBack != nullptr) {
        neighbours.windows.order(number, NSWindowOrderingMode::below, othersBack->number);
    } else {
        neighbours.windows.order(number, NSWindowOrderingMode::above, 0);
    }
}

bool Finder::setFrame(std::int64_t number, const CGRect& frame) {
    const FinderWindow* window = entry(number);
    const bool isUsable = std::isfinite(frame.origin.x) && std::isfinite(frame.origin.y) &&
                          std::isfinite(frame.size.width) && std::isfinite(frame.size.height);
    if (window == nullptr || window->fullScreen || !isUsable) return false;
    moveTo(number, {frame.origin, {std::max(frame.size.width, 0.0), std::max(frame.size.height, 0.0)}});
    return true;
}

void Finder::moveTo(std::int64_t number, const CGRect& frame) {
    const CGRect before = neighbours.windows.find(number)->frame;
    neighbours.windows.setFrame(number, frame);
    // Accessibility places a window by its top left corner.
    if (before.minX() != frame.minX() || before.maxY() != frame.maxY()) tree->post(number, "AXMoved");
    if (before.size != frame.size) tree->post(number, "AXResized");
}

bool Finder::setFullScreen(std::int64_t number, bool fullScreen) {
    FinderWindow* window = folderWindow(number);
    if (window == nullptr) return false;
    if (window->fullScreen == fullScreen) return true;
    if (fullScreen) return enterFullScreen(*window);
    leaveFullScreen(*window);
    mainWindowMayHaveChanged();
    return true;
}

const platform::NSScreen* Finder::screenOf(std::int64_t number) const {
    return platform::screenShowingMost(neighbours.displays.screens(), neighbours.windows.find(number)->frame);
}

bool Finder::enterFullScreen(FinderWindow& window) {
    const platform::NSScreen* screen = screenOf(window.number);
    if (screen == nullptr) return false;
    setMinimized(window, false);
    const ServerWindow* shown = neighbours.windows.find(window.number);
    window.frameBeforeFullScreen = shown->frame;
    window.spaceBeforeFullScreen = shown->space;
    window.fullScreen = true;
    const int ownSpace = neighbours.windows.makeSpace(shown->space);
    neighbours.windows.setSpace(window.number, ownSpace);
    moveTo(window.number, screen->frame);
    neighbours.windows.switchToSpace(ownSpace);
    mainWindowMayHaveChanged();
    return true;
}

void Finder::leaveFullScreen(FinderWindow& window) {
    const int ownSpace = neighbours.windows.find(window.number)->space;
    window.fullScreen = false;
    neighbours.windows.setSpace(window.number, window.spaceBeforeFullScreen);
    moveTo(window.number, window.frameBeforeFullScreen);
    neighbours.windows.removeSpace(ownSpace);
}

bool Finder::zoom(std::int64_t number) {
    const FinderWindow* window = folderWindow(number);
    if (window == nullptr || window->fullScreen) return false;
    const auto frame = neighbours.windows.zoomedFrame(number, neighbours.displays.screens());
    if (frame) moveTo(number, *frame);
    return frame.has_value();
}

void Finder::refitFullScreenWindows() {
    for (const FinderWindow& window : list) {
        if (!window.fullScreen) continue;
        if (const platform::NSScreen* screen = screenOf(window.number)) moveTo(window.number, screen->frame);
    }
}

bool Finder::isOnScreen(const FinderWindow& window) const {
    const ServerWindow* shown = neighbours.windows.find(window.number);
    return shown != nullptr && neighbours.windows.isOnScreen(*shown);
}

}  // namespace desk
