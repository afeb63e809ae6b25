#include "desk/processes/KeyboardFocus.h"

#include <utility>

#include "desk/processes/Activation.h"
#include "desk/processes/Processes.h"
#include "desk/windows/WindowStack.h"

namespace desk {

KeyboardFocus::KeyboardFocus(WindowStack& theWindows, Processes& theProcesses, Activation& theActivation)
    : windows(theWindows), processes(theProcesses), activation(theActivation) {
    subscriptions.push_back(processes.frontmostChanged.subscribe([this] { frontmostChanged(); }));
    subscriptions.push_back(activation.keyboardTaken.subscribe([this] { makeKey(0); }));
}

void KeyboardFocus::makeKey(std::int64_t window) {
    if (std::exchange(key, window) != window) windows.changed();
}

void KeyboardFocus::windowOrderedOut(std::int64_t window) {
    if (key != window) return;
    key = 0;
    const Process* frontmost = processes.frontmost();
    if (frontmost == nullptr || frontmost->processIdentifier != ownerOf(window)) return;
    const ServerWindow* next = windows.find(activation.mainWindow(frontmost->processIdentifier));
    if (next != nullptr && next->window != nullptr) next->window->makeKeyWindow();
}

void KeyboardFocus::frontmostChanged() {
    const Process* frontmost = processes.frontmost();
    const bool isOwn = frontmost != nullptr && frontmost->processIdentifier == ownerOf(key);
    if (!isOwn) key = 0;
}

void KeyboardFocus::processPressed(std::int32_t processIdentifier) {
    if (ownerOf(key) != processIdentifier) key = 0;
}

std::int32_t KeyboardFocus::ownerOf(std::int64_t window) const {
    const ServerWindow* entry = windows.find(window);
    return entry == nullptr ? 0 : entry->owner;
}

}  // namespace desk
