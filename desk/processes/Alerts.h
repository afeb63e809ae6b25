// The alerts and prompts that are up, of the system and of applications. One is shown at a time, the system's first; the others wait behind it. Whoever puts one up is told which button was
// pressed. How an alert looks and where it stands is said elsewhere.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Images.h"
#include "platform/Signal.h"

namespace desk {

enum class AlertStyle { warning, informational, critical };

struct Alert {
    std::string source;         // "system", "updater", or the bundle identifier of the application whose alert it is
    std::int32_t owner = 0;     // the process that it is for; it goes with it. 0: the system's
    std::string icon;           // the name of the application whose icon it shows
    platform::NSImage picture;  // in place of that icon, if anything is in it
    std::string message;        // in bold
    std::string informative;    // below it; may be empty
    std::vector<std::string> buttons;          // in the order in which they were added
    std::optional<std::string> defaultButton;  // Return presses it
    std::optional<std::string> cancelButton;   // Escape presses it
    AlertStyle style = AlertStyle::warning;
};

class Alerts {
public:
    using Answer = std::function<void(const std::string& button)>;

    // The answer runs at most once, inside press(), when the alert has gone. The number serves withdraw().
    std::uint64_t show(Alert alert, Answer answer);
    // It goes without an answer; nothing happens if it has gone.
    void withdraw(std::uint64_t number);
    // Every alert of that process.
    void withdrawAllOf(std::int32_t owner);
    // In front of the others of its kind.
    void bringForward(std::uint64_t number);

    // The one that is shown; null when none is up.
    const Alert* shown() const;
    // 0 when none is up.
    std::uint64_t shownNumber() const { return waiting.empty() ? 0 : waiting[front()].number; }
    // By label; false when the one that is shown has no such button.
    bool press(const std::string& button);

    // Another one is shown, or none.
    platform::Signal<> changed;

private:
    struct Waiting {
        std::uint64_t number;
        Alert alert;
        Answer answer;
    };

    // Of the one that is shown, if any is.
    std::size_t front() const;
    template <typename Condition>
    void eraseIf(Condition condition);

    std::vector<Waiting> waiting;
    std::uint64_t lastNumber = 0;
};

}  // namespace desk
