// AppleScript sent to other applications, and whether the user lets this application control one.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

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

using OSStatus = std::int32_t;
inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus procNotFound = -600;
inline constexpr OSStatus errAEEventNotPermitted = -1743;
inline constexpr OSStatus errAEEventWouldRequireUserConsent = -1744;
// "****": any event class, any event.
inline constexpr std::uint32_t typeWildCard = 0x2A2A2A2A;

// The address of an application; nothing looks whether it is there.
struct NSAppleEventDescriptor {
    std::string bundleIdentifier;
    static NSAppleEventDescriptor descriptorWithBundleIdentifier(std::string bundleIdentifier) {
        return {std::move(bundleIdentifier)};
    }
};

class AppleEvents {
public:
    virtual ~AppleEvents() = default;
    // Any thread, which waits for as long as the user takes if the question may be put to them. It starts no application: one that doesn't run is procNotFound.
    virtual OSStatus AEDeterminePermissionToAutomateTarget(const NSAppleEventDescriptor& target,
                                                           std::uint32_t eventClass, std::uint32_t eventID,
                                                           bool askUserIfNeeded) = 0;
    // NSAppleScript's initWithSource: null when the platform refuses the source. Any thread.
    virtual std::unique_ptr<NSAppleScript> makeAppleScript(const std::string& source) = 0;
};

}  // namespace platform
