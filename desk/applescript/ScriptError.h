// The failure of a script, as a number and its wording: what a compilation or a run hands back, and what a host
// answers when Finder refuses something. The numbers and sentences are those that macOS uses.
#pragma once

#include "desk/applescript/ErrorNumber.h"

#include <cstdint>
#include <optional>
#include <string>

namespace desk::applescript {

struct ScriptError {
    std::int64_t number = 0;
    std::optional<std::string> message;

    bool operator==(const ScriptError&) const = default;

    static ScriptError finderNotRunning() {
        return {ErrorNumber::applicationNotRunning, "Finder got an error: Application isn’t running."};
    }
    static ScriptError finderNotAuthorized() {
        return {ErrorNumber::notAuthorized, "Not authorized to send Apple events to Finder."};
    }
};

}  // namespace desk::applescript
