// AppleScript sent to other applications.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/Dictionary.h"

namespace platform {

inline constexpr const char* NSAppleScriptErrorMessage = "NSAppleScriptErrorMessage";
inline constexpr const char* NSAppleScriptErrorNumber = "NSAppleScriptErrorNumber";

struct NSAppleScriptResult {
    std::optional<std::string> stringValue;  // empty on an error, and for results that have no text
    std::optional<Dictionary> error;
};

// One script. The first run compiles it, which can fail as a run does. It is used by one thread at a time; a run blocks that thread until the
// addressed application has answered.
class NSAppleScript {
public:
    virtual ~NSAppleScript() = default;
    virtual NSAppleScriptResult executeAndReturnError() = 0;
};

class AppleEvents {
public:
    virtual ~AppleEvents() = default;
    // NSAppleScript's initWithSource: null when the platform refuses the source. Any thread.
    virtual std::unique_ptr<NSAppleScript> makeAppleScript(const std::string& source) = 0;
};

}  // namespace platform
