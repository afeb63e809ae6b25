// What a script's `click` and `drag` aim at: a point, a part of a window, of a bar, of an alert, as a place on the screen.
#pragma once

#include "platform/Geometry.h"
#include "play/Arguments.h"

namespace play {

class ScriptPlayer;

struct Target {
    platform::CGPoint point;  // AppKit, of the screen
    std::size_t words;        // that told it
};

// Ends the script when the words tell no target, or the target isn't there.
Target readTarget(ScriptPlayer& player, const Arguments& arguments);

}  // namespace play
