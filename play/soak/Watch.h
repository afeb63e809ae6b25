// Looks at the bars after every line of a story, and remembers between lines what the checks have to know: what was being typed, which bars were placed by
// hand, in which order the windows came to stand. It holds on to the desk it watches.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Token.h"
#include "play/soak/Finding.h"
#include "tracking/FinderWindowState.h"

namespace brindle {
class FinderOverlayWindowController;
}  // namespace brindle

namespace play {

class Session;

// Bars at level 0 that don't stand immediately above their own windows, by window identifier.
std::vector<std::string> barsOutOfOrder(const Session& session);

class Watch {
public:
    explicit Watch(Session& theSession);

    // After this line.
    std::optional<Finding> look(std::string_view line);

    // A bar whose window couldn't be moved along with it, or whose drag ended where it couldn't be read, stays apart until something is published.
    bool mayStandApart(const std::string& id) const;
    // Finder's windows changed places below the bar, and nothing by which bars are ordered has been published since: they came forward as a whole while Finder was in
    // front already, or changed back before anybody looked. The bar is ordered when something of that next changes.
    bool mayStandOutOfOrder(const std::string& id) const;

private:
    struct Typing {
        std::string id;
        std::string text;
    };
    // By what bars are ordered, as published.
    struct OrderingTriggers {
        std::optional<std::int64_t> zIndex;
        std::optional<std::string> activeWindow;
        std::optional<std::string> frontmost;
        bool operator==(const OrderingTriggers&) const = default;
    };
    // A bar that has come to stand elsewhere than above its window.
    struct Fallen {
        OrderingTriggers triggers;  // of that moment
        bool byOtherWindows;        // moved while the bar stood still
    };
    using TypingByPanel = std::map<std::int64_t, Typing>;

    TypingByPanel typingNow() const;
    std::optional<Finding> lookAtTyping(std::string_view line, const TypingByPanel& now) const;
    void noteHands();
    void notePublished();
    OrderingTriggers triggersOf(const std::string& id) const;
    void noteTriggers();
    bool finderStandsInFront() const;
    void stackChanged();

    Session& session;
    TypingByPanel typing;
    bool wasOnStack = false;
    std::int64_t lines = 0;
    std::map<std::string, std::int64_t> lastByHand;  // lines at which a bar was being dragged, or its window followed
    std::int64_t lastPublication = 0;
    std::vector<brindle::FinderWindowState> published;
    std::map<std::string, Fallen> fallen;
    std::vector<std::int64_t> otherWindows;  // on screen, front to back, without the bars
    platform::Token subscription;
};

}  // namespace play
