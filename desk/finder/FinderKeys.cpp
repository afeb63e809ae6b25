#include "desk/finder/FinderKeys.h"

#include <string>
#include <vector>

#include "desk/finder/Finder.h"
#include "desk/finder/FinderBrowser.h"
#include "desk/finder/FinderCommands.h"
#include "desk/keys/KeyStroke.h"
#include "views/text/KeyBindings.h"

namespace desk {

namespace {

namespace Flags = platform::NSEventModifierFlags;
using platform::NSEvent;

constexpr std::uint64_t meaningful = Flags::command | Flags::shift | Flags::option | Flags::control;

// A key that has to do with the list alone.
struct ListKey {
    const char* key;
    void (*act)(FinderBrowser& browser, const FinderWindow& window);
};

double page(FinderBrowser& browser, const FinderWindow& window) {
    return browser.layout(window).list().height();
}

constexpr ListKey listKeys[] = {
    {"down", [](FinderBrowser& b, const FinderWindow& w) { b.step(w.number, 1, Selecting::alone); }},
    {"up", [](FinderBrowser& b, const FinderWindow& w) { b.step(w.number, -1, Selecting::alone); }},
    {"shift+down", [](FinderBrowser& b, const FinderWindow& w) { b.step(w.number, 1, Selecting::extending); }},
    {"shift+up", [](FinderBrowser& b, const FinderWindow& w) { b.step(w.number, -1, Selecting::extending); }},
    {"cmd+down", [](FinderBrowser& b, const FinderWindow& w) { b.openSelection(w.number); }},
    {"page-down", [](FinderBrowser& b, const FinderWindow& w) { b.scrollBy(w.number, page(b, w)); }},
    {"page-up", [](FinderBrowser& b, const FinderWindow& w) { b.scrollBy(w.number, -page(b, w)); }},
    {"home", [](FinderBrowser& b, const FinderWindow& w) { b.scrollTo(w.number, 0); }},
    {"end", [](FinderBrowser& b, const FinderWindow& w) { b.scrollTo(w.number, b.layout(w).mostScrolled()); }}};

bool isKey(const NSEvent& event, const std::string& combination) {
    const auto stroke = keyStroke(combination);
    return stroke && stroke->keyCode == event.keyCode && stroke->modifiers == (event.modifierFlags & meaningful);
}

}  // namespace

void FinderKeys::keyDown(const NSEvent& event) {
    if (!takeCommand(event) && !takeListKey(event)) takeTyping(event);
}

bool FinderKeys::takeCommand(const NSEvent& event) {
    for (const FinderCommand& command : finderCommands()) {
        if (!isKey(event, command.key)) continue;
        if (command.isPossible(finder)) command.act(finder);
        return true;
    }
    return false;
}

bool FinderKeys::takeListKey(const NSEvent& event) {
    const FinderWindow* window = finder.front();
    if (window == nullptr) return false;
    for (const ListKey& each : listKeys) {
        if (!isKey(event, each.key)) continue;
        each.act(finder.browser(), *window);
        return true;
    }
    return false;
}

void FinderKeys::takeTyping(const NSEvent& event) {
    const std::string typed = views::typedText(event);
    const std::int64_t window = finder.mainWindow();
    // A blank is part of a name, but begins none.
    if (typed.empty() || (typed == " " && !finder.browser().isTyping(window))) return;
    finder.browser().type(window, typed);
}

}  // namespace desk
