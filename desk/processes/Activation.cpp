#include "desk/processes/Activation.h"

#include "desk/processes/Processes.h"
#include "desk/windows/WindowStack.h"

namespace desk {

bool Activation::activate(const std::string& bundleIdentifier) {
    const Process* process = processes.findByBundleIdentifier(bundleIdentifier);
    if (process == nullptr) return false;
    activate(process->processIdentifier, true);
    return true;
}

void Activation::activate(std::int32_t processIdentifier, bool allWindows) {
    if (processes.find(processIdentifier) == nullptr) return;
    const Process* before = processes.frontmost();
    const bool wasFrontmost = before != nullptr && before->processIdentifier == processIdentifier;
    processes.activate(processIdentifier);
    const std::int64_t main = mainWindow(processIdentifier);
    if (allWindows)
        windows.raiseAll(processIdentifier);
    else
        windows.raise(main);
    const ServerWindow* shown = windows.find(main);
    if (!wasFrontmost && shown != nullptr && shown->window != nullptr) shown->window->makeKeyWindow();
}

void Activation::activateItself(std::int32_t processIdentifier) {
    const Process* frontmost = processes.frontmost();
    if (frontmost == nullptr || frontmost->processIdentifier != processIdentifier) activate(processIdentifier, true);
    keyboardTaken();
}

std::int64_t Activation::mainWindow(std::int32_t processIdentifier) const {
    for (const ServerWindow* window : windows.onScreen())
        if (window->owner == processIdentifier && window->canBeMain()) return window->number;
    return 0;
}

}  // namespace desk
