// The numbers of Finder windows in the lines of a story. Windows are numbered as they open, so when a line that opens one is left out the numbers after it change.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "play/soak/Story.h"

namespace play {

// The kept lines with the numbers that their windows will have. Lines about windows that no kept line opens are left out too.
std::vector<std::string> renumbered(const std::vector<PlayedLine>& lines, const std::vector<bool>& isKept);

}  // namespace play
