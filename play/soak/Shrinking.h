// Makes a story that shows a fault as short as it can: leaves lines out, in ever smaller groups, and rounds numbers, as long as the same check fails.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "play/soak/Story.h"

namespace play {

// The shortest story found that ends in a failure of the same check.
StoryEnd shrinkStory(StoryEnd first, const Preparation& prepare);

}  // namespace play
