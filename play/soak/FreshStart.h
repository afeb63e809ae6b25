// What the application would publish if it were started now: a second copy of its observer looks at the same desk, and is gone again.
#pragma once

#include <vector>

#include "tracking/FinderWindowState.h"

namespace play {

class Session;

// The desk is at rest, and at rest again afterwards; no time passes.
std::vector<brindle::FinderWindowState> publishedByFreshStart(Session& session);

}  // namespace play
