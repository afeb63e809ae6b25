// Which bars may stand elsewhere than at their window for the moment: those that were moved by hand, and those whose window changed places without anything
// that bars are ordered by having been published since. It listens to the window server and, behind the coordinator, to what the observer publishes; it changes nothing.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/Token.h"

namespace brindle {
class FinderOverlayWindowController;
}  // namespace brindle

namespace play {

class Session;

// Bars at level 0 that don't stand immediately above their own windows, by window identifier.
std::vector<std::string> barsOutOfOrder(const Session& session);

class Leeway {
public:
    explicit Leeway(Session& theSession);

    // After each line: starts listening to what was launched meanwhile, and remembers what a press has brought to the front.
    void look();

    // On another space than its window, with no pass since that could have ordered it: the window changed spaces together with the user, or while the bar was being dragged.
    bool mayBeElsewhere(const std::string& id) const { return dragged.contains(id) || leftBehind.contains(id); }
    // Dragged, or moved ahead of its window while that was being dragged, with no pass since that could have placed it.
    bool mayStandApart(const std::string& id) const { return dragged.contains(id) || followed.contains(id); }
    bool mayStandOutOfOrder(const std::string& id) const;

private:
    // By what bars are ordered, as published.
    struct OrderingTriggers {
        std::optional<std::int64_t> zIndex;
        std::optional<std::string> activeWindow;
        std::optional<std::string> frontmost;
        bool operator==(const OrderingTriggers&) const = default;
    };
    // A bar that has come to stand elsewhere than above its window.
    struct Fall {
        OrderingTriggers triggers;  // when it was last seen to be left as it is
        bool isInnocent;            // no order of the bar's own that it should not have given
    };

    void stackChanged();
    void published();
    void notePress();
    void noteMoves();
    void noteFalls();
    bool isInnocent(const std::string& id) const;
    bool clickMissesWindow(const brindle::FinderOverlayWindowController& bar) const;
    bool wasOvertakenSincePress(std::int64_t window) const;
    bool hasComeForward(std::int64_t window) const;
    std::int64_t frontWindow() const;
    OrderingTriggers triggersOf(const std::string& id) const;

    Session& session;
    const void* listenedTo = nullptr;
    std::set<std::string> dragged;
    std::set<std::string> followed;
    std::set<std::string> leftBehind;
    std::map<std::string, Fall> falls;
    std::vector<std::int64_t> otherWindows;  // on screen, front to back, without the application's own
    bool otherWindowsMoved = false;
    bool isPressed = false;               // the left button
    std::set<std::string> missedByPress;  // bars that couldn't find their windows when they were pressed
    std::int64_t frontAtPress = 0;        // the window that was in front once that press had been handled
    std::vector<platform::Token> subscriptions;
};

}  // namespace play
