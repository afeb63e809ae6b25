#include "desk/ports/PanelHandle.h"

#include "desk/processes/KeyboardFocus.h"
#include "desk/processes/LaunchedApplication.h"

namespace desk {

using platform::NSWindowOrderingMode;

PanelHandle::PanelHandle(WindowStack& theWindows, KeyboardFocus& theKeyboard, LaunchedApplication& theApplication,
                         platform::NSWindow& theWindow, const platform::CGRect& frame)
    : windows(theWindows),
      keyboard(theKeyboard),
      application(theApplication),
      window(theWindow),
      number(theWindows.makePanelNumber()),
      lastFrame(frame) {
    application.ownWindows.emplace(number, &window);
    if (application.isDead()) return;
    ServerWindow created;
    created.number = number;
    created.owner = application.processIdentifier();
    created.frame = frame;
    created.title = window.settings().title;
    created.window = &window;
    windows.add(created);
}

PanelHandle::~PanelHandle() {
    application.ownWindows.erase(number);
    application.loop().forgetWindow(&window);
    windows.order(number, NSWindowOrderingMode::out, 0);
    keyboard.windowOrderedOut(number);
    windows.remove(number);
}

const ServerWindow* PanelHandle::entry() const {
    return windows.find(number);
}

platform::CGRect PanelHandle::frame() const {
    return lastFrame;
}

void PanelHandle::setFrame(const platform::CGRect& frame) {
    lastFrame = frame;
    windows.setFrame(number, frame);
}

int PanelHandle::level() const {
    return lastLevel;
}

void PanelHandle::setLevel(int level) {
    lastLevel = level;
    windows.setLevel(number, level);
}

bool PanelHandle::isVisible() const {
    const ServerWindow* shown = entry();
    return shown != nullptr && windows.isOnScreen(*shown);
}

void PanelHandle::orderWindow(NSWindowOrderingMode mode, std::int64_t relativeTo) {
    windows.order(number, mode, relativeTo);
    if (mode == NSWindowOrderingMode::out) keyboard.windowOrderedOut(number);
}

void PanelHandle::setMiniaturized(bool miniaturized) {
    windows.setMinimized(number, miniaturized);
    if (miniaturized) keyboard.windowOrderedOut(number);
}

bool PanelHandle::isMiniaturized() const {
    const ServerWindow* shown = entry();
    return shown != nullptr && shown->minimized;
}

void PanelHandle::makeKey() {
    if (!application.isDead()) keyboard.makeKey(number);
}

bool PanelHandle::isKey() const {
    return keyboard.keyWindow() == number;
}

void PanelHandle::settingsChanged() {
    windows.setTitle(number, window.settings().title);
}

void PanelHandle::setNeedsDisplay() {
    if (isVisible()) windows.changed();
}

}  // namespace desk
