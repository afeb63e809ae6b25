// The command `desk`: reads its arguments and plays a script, or the tour.
#pragma once

#include <string>
#include <vector>

namespace play {

// Answers the exit code: 0, 1 for a failed expectation, 2 for bad arguments or a file that can't be read.
int runDesk(const std::vector<std::string>& arguments);

}  // namespace play
