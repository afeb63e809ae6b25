// The window server's list of windows, front to back, of all processes. Main thread only.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/Dictionary.h"

namespace platform {

inline constexpr std::uint32_t kCGWindowListOptionOnScreenOnly = 1;
inline constexpr std::uint32_t kCGWindowListExcludeDesktopElements = 16;

inline constexpr const char* kCGWindowOwnerPID = "kCGWindowOwnerPID";
inline constexpr const char* kCGWindowLayer = "kCGWindowLayer";
inline constexpr const char* kCGWindowNumber = "kCGWindowNumber";
inline constexpr const char* kCGWindowBounds = "kCGWindowBounds";  // dictionary form, top-left space
inline constexpr const char* kCGWindowName = "kCGWindowName";

class WindowServer {
public:
    virtual ~WindowServer() = default;
    // As a rule an array of dictionaries with the keys above; null when the call fails. `relativeToWindow` 0 means no reference window.
    virtual Value CGWindowListCopyWindowInfo(std::uint32_t option, std::int64_t relativeToWindow) = 0;
};

}  // namespace platform
