// Brings the desk to rest: releases the mouse, answers prompts, takes every fault back, gives what was taken away. It writes script lines; what the
// application makes of them is what is checked then.
#pragma once

#include <deque>
#include <optional>
#include <string>

#include "platform/Time.h"

namespace play {

class Session;

// The next thing that keeps the desk from coming to rest, mended by a line; empty when there is none, so that only time has to pass.
std::optional<std::string> healingLine(const Session& session);

// Closes all windows, the about window too. That the last one closes is heard of, since a desk at rest loses nothing any more.
std::deque<std::string> clearingLines(const Session& session);

// Two long poll intervals, and whatever was under way with the longest delay that there was.
std::string restLine(platform::Duration longestDelay);

}  // namespace play
