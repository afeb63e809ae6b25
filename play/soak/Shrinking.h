// Makes a story that shows a fault as short as it can: leaves lines out, in ever smaller groups, renumbers the windows of what is left, and rounds numbers, as long as the same check fails.
#pragma once

#include "play/soak/Story.h"

namespace play {

// The shortest story found that ends in a failure of the same check. It stops looking after a number of lines that take some seconds to play.
StoryEnd shrinkStory(StoryEnd first, const Preparation& prepare);

}  // namespace play
