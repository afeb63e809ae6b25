// What a run may still use up. Running out ends the script, whatever its `try` blocks say.
#pragma once

#include "desk/applescript/Failure.h"

#include <cstdint>

namespace desk::applescript {

class Budget {
public:
    explicit Budget(std::int64_t steps) : stepsLeft(steps) {}

    void charge(std::int64_t steps) {
        stepsLeft -= steps;
        if (stepsLeft < 0) {
            throw Failure{{ErrorNumber::timedOut, "The script was stopped because it ran for too long."}, true};
        }
    }

private:
    std::int64_t stepsLeft;
};

}  // namespace desk::applescript
