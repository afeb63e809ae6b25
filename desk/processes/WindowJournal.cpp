#include "desk/processes/WindowJournal.h"

#include "desk/processes/Journal.h"
#include "desk/windows/WindowStack.h"

namespace desk {

WindowJournal::WindowJournal(WindowStack& windows, Journal& theJournal)
    : journal(theJournal),
      subscription(windows.cameOrWent.subscribe([this](const ServerWindow& window) { note(window); })) {}

void WindowJournal::note(const ServerWindow& window) {
    // One that goes may be half destroyed: only what the list knows of it is asked.
    const bool wasShown = shown.erase(window.number) > 0;
    const bool isShown = window.isIn() && window.window != nullptr && !window.window->settings().isPanel;
    if (isShown) shown.insert(window.number);
    if (wasShown != isShown) journal.note(window.owner, "window " + window.title + (isShown ? " in" : " out"));
}

}  // namespace desk
