// The system's one log, a file to which every message is appended as a line with its time. It has no levels, no switch and no rotation, and a
// line that can't be written is lost without anybody noticing. Main thread only.
#pragma once

#include <string_view>

#include "platform/Platform.h"

namespace brindle::DebugLog {

inline constexpr const char* path = "/tmp/Orvane-debug.log";

// A message may hold line feeds; it is written as it stands.
void write(platform::Platform& platform, std::string_view message);

}  // namespace brindle::DebugLog
