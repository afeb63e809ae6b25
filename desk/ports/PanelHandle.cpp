#include "desk/ports/PanelHandle.h"

#include "desk/Machine.h"

namespace desk {

using platform::NSWindowOrderingMode;

PanelHandle::PanelHandle(Machine& theMachine, LaunchedApplication& theApplication, platform::NSWindow& theWindow,
                         const platform::CGRect& frame)
    : machine(theMachine),
      application(theApplication),
      window(theWindow),
      number(theMachine.windows.makePanelNumber()),
      lastFrame(frame) {
    application.ownWindows.emplace(number, &window);
    if (application.isDead()) return;
    ServerWindow created;
    created.number = number;
    created.owner = application.processIdentifier();
    created.frame = frame;
    created.title = window.settings().title;
    created.window = &window;
    machine.windows.add(created);
}

PanelHandle::~PanelHandle() {
    application.ownWindows.erase(number);
    application.loop().forgetWindow(&window);
    machine.windows.remove(number);
    machine.input.windowOrderedOut(number);
}

const ServerWindow* PanelHandle::entry() const {
    return machine.windows.find(number);
}

platform::CGRect PanelHandle::frame() const {
    return lastFrame;
}

void PanelHandle::setFrame(const platform::CGRect& frame) {
    lastFrame = frame;
    machine.windows.setFrame(number, frame);
}

int PanelHandle::level() const {
    return lastLevel;
}

void PanelHandle::setLevel(int level) {
    lastLevel = level;
    machine.windows.setLevel(number, level);
}

bool PanelHandle::isVisible() const {
    const ServerWindow* shown = entry();
    return shown != nullptr && machine.windows.isOnScreen(*shown);
}

void PanelHandle::orderWindow(NSWindowOrderingMode mode, std::int64_t relativeTo) {
    machine.windows.order(number, mode, relativeTo);
    if (mode == NSWindowOrderingMode::out) machine.input.windowOrderedOut(number);
}

void PanelHandle::makeKey() {
    if (!application.isDead()) machine.input.makeKey(number);
}

bool PanelHandle::isKey() const {
    return machine.input.keyWindow() == number;
}

void PanelHandle::settingsChanged() {
    machine.windows.setTitle(number, window.settings().title);
}

void PanelHandle::setNeedsDisplay() {
    if (isVisible()) machine.windows.changed();
}

}  // namespace desk
