// What Accessibility tells of Finder, written down as a listener hears it, and Finder's windows as one line each, for whole-state comparisons.
#pragma once

#include <string>
#include <vector>

#include "desk/Machine.h"
#include "desk/finder/FinderAccessibility.h"

namespace kit {

class FinderJournal {
public:
    explicit FinderJournal(desk::Machine& theMachine)
        : machine(theMachine),
          subscription(theMachine.finder.accessibility().told.subscribe(
              [this](const platform::AXUIElement& element, const std::string& notification) {
                  lines.push_back(notification + " " + std::to_string(element.identity));
              })) {}

    // What has come since it was last asked.
    std::vector<std::string> take() {
        machine.settle();
        return std::exchange(lines, {});
    }

private:
    desk::Machine& machine;
    platform::Token subscription;
    std::vector<std::string> lines;
};

// "101 One at 100,200 800x500 space 1", front to back, with what is out of the ordinary behind it.
inline std::vector<std::string> finderWindows(const desk::Machine& machine) {
    const auto whole = [](double value) { return std::to_string(static_cast<long>(value)); };
    std::vector<std::string> lines;
    for (const desk::FinderWindow* window : machine.finder.windows()) {
        const desk::ServerWindow* shown = machine.windows.find(window->number);
        const platform::CGRect& frame = shown->frame;
        std::string line = std::to_string(window->number) + " " + window->name + " at " + whole(frame.minX()) + "," +
                           whole(frame.minY()) + " " + whole(frame.width()) + "x" + whole(frame.height()) + " space " +
                           std::to_string(shown->space);
        if (window->minimized) line += " minimized";
        if (window->fullScreen) line += " full screen";
        lines.push_back(line);
    }
    return lines;
}

// Numbers of everything on screen, front to back.
inline std::vector<std::int64_t> stacking(const desk::Machine& machine) {
    std::vector<std::int64_t> numbers;
    for (const desk::ServerWindow* window : machine.windows.onScreen()) numbers.push_back(window->number);
    return numbers;
}

}  // namespace kit
