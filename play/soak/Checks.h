// What must hold whenever the desk has come to rest, whatever happened before: the bars on screen are those of the published windows, each above its own window and where it
// belongs; what is published is what a fresh start would publish; and nothing is left behind.
#pragma once

#include <optional>

#include "play/soak/Finding.h"

namespace play {

class Session;
class Leeway;

// The first fault found. Nothing is checked while no copy of the application runs.
std::optional<Finding> checkAtRest(Session& session, const Leeway& leeway);

}  // namespace play
