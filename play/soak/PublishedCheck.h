// What is published is what a fresh start would publish, field by field.
#pragma once

#include <optional>
#include <vector>

#include "play/soak/Finding.h"
#include "tracking/FinderWindowState.h"

namespace play {

class Session;

// With the desk at rest. Left out is what depends on earlier days by rule: the selections of windows that aren't in front, and windows whose place an info panel takes.
std::optional<Finding> checkPublished(Session& session, const std::vector<brindle::FinderWindowState>& windows);

}  // namespace play
