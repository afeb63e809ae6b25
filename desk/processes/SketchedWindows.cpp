#include "desk/processes/SketchedWindows.h"

#include "desk/processes/Activation.h"
#include "desk/processes/Processes.h"
#include "desk/processes/WindowMenus.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowFrame.h"
#include "desk/windows/WindowStack.h"

namespace desk {

namespace {

constexpr platform::CGSize leastSketched{320, 200};

struct SketchedKey {
    const char* characters;
    void (WindowKeeper::*act)(std::int64_t window);
};
constexpr SketchedKey sketchedKeys[] = {{"w", &WindowKeeper::close}, {"m", &WindowKeeper::minimize}};

}  // namespace

WindowTraits SketchedWindows::traits(std::int64_t /*window*/) const {
    return {platform::NSWindowStyleMask::titled | everyWindowButton, leastSketched};
}

void SketchedWindows::bringForward(std::int64_t window) {
    if (const ServerWindow* shown = windows.find(window)) processes.activate(shown->owner);
    windows.raise(window);
}

void SketchedWindows::close(std::int64_t window) {
    windows.remove(window);
}

void SketchedWindows::minimize(std::int64_t window) {
    windows.setMinimized(window, true);
}

void SketchedWindows::restore(std::int64_t window) {
    windows.setMinimized(window, false);
    windows.setSpace(window, windows.currentSpace());
    bringForward(window);
}

void SketchedWindows::zoom(std::int64_t window) {
    if (const auto frame = windows.zoomedFrame(window, displays.screens())) windows.setFrame(window, *frame);
}

void SketchedWindows::setFrame(std::int64_t window, const platform::CGRect& frame) {
    windows.setFrame(window, frame);
}

std::vector<std::string> SketchedWindows::menus() const {
    return windowMenus();
}

std::vector<platform::MenuItem> SketchedWindows::menuItems(std::int32_t process, const std::string& menu) {
    return windowMenuItems(processes, windows, process, menu);
}

void SketchedWindows::handle(std::int64_t /*window*/, const platform::NSEvent& event) {
    const Process* frontmost = processes.frontmost();
    if (event.type != platform::NSEventType::keyDown || frontmost == nullptr) return;
    if ((event.modifierFlags & platform::NSEventModifierFlags::command) == 0) return;
    if (event.charactersIgnoringModifiers == "q") return processes.end(frontmost->processIdentifier, Ending::asked);
    for (const SketchedKey& key : sketchedKeys)
        if (event.charactersIgnoringModifiers == key.characters)
            (this->*key.act)(activation.mainWindow(frontmost->processIdentifier));
}

}  // namespace desk
