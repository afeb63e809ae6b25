// AppleScript sent to Finder: makes the script objects that applications hold, and keeps what has been sent for whoever looks at the machine. It knows no
// syntax; what scripts see of Finder and do to it is FinderScriptHost's.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>

#include "desk/finder/FinderNeighbours.h"
#include "platform/AppleEvents.h"
#include "platform/Time.h"

namespace desk {

class Finder;
class LaunchedApplication;

// One script sent, for whoever looks at the machine.
struct SentScript {
    std::string source;
    std::string error;  // empty on success
    platform::Date sent;
    std::optional<platform::Duration> took = std::nullopt;  // until its sender had the answer
};

// Compiles and runs a script sent by an application, on the calling thread (its main thread or one of its queues): permission, prompt, faults, evaluation at once,
// then the latency, during which the caller waits and the machine goes on.
class FinderScripting {
public:
    FinderScripting(Finder& theFinder, const FinderNeighbours& theNeighbours)
        : finder(theFinder), neighbours(theNeighbours) {}
    std::unique_ptr<platform::NSAppleScript> makeScript(LaunchedApplication& sender, const std::string& source);

    // The last 20.
    const std::deque<SentScript>& sentScripts() const { return scripts; }

private:
    class Script;

    // A script is listed when it is sent; its error is filled in when that is known.
    std::uint64_t record(const std::string& source);
    void recordError(std::uint64_t place, const std::string& error);
    void recordAnswer(std::uint64_t place);
    SentScript* recorded(std::uint64_t place);

    Finder& finder;
    FinderNeighbours neighbours;
    std::deque<SentScript> scripts;  // the last ones
    std::uint64_t sent = 0;
};

}  // namespace desk
