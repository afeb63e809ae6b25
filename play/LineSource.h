// Where a player's lines come from, one at a time while it plays. A line may be made up on the spot from what the machine shows by then.
#pragma once

#include <optional>

#include "play/Arguments.h"
#include "play/ScriptReader.h"

namespace play {

class LineSource {
public:
    virtual ~LineSource() = default;

    // Empty at the end. Called when the line before has been played, or has led into a nested loop, which wants the next one. A line without words couldn't be read; its source
    // tells why.
    virtual std::optional<ScriptLine> next() = 0;
    // The line given last can't be played here and has changed nothing. True: on with the next one.
    virtual bool goesOnAfter(const Failure& /*failure*/) { return false; }
};

}  // namespace play
