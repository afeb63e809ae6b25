// What a run may still use up. Running out ends the script, whatever its `try` blocks say.
#pragma once

#include "desk/applescript/Failure.h"

#include <cstdint>

namespace desk::applescript {

class Budget {
public:
    Budget(std::int64_t steps, int depth) : stepsLeft(steps), depthLeft(depth) {}

    void charge(std::int64_t steps) {
        stepsLeft -= steps;
        if (stepsLeft < 0) {
            throw Failure{{ErrorNumber::timedOut, "The script was stopped because it ran for too long."}, true};
        }
    }

    // One level of recursion, for as long as it lives.
    class Level {
    public:
        explicit Level(Budget& owner) : budget(owner) {
            if (budget.depthLeft <= 0) {
                fail(ErrorNumber::stackOverflow, "Stack overflow.");
            }
            --budget.depthLeft;
        }
        ~Level() { ++budget.depthLeft; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

    private:
        Budget& budget;
    };

private:
    std::int64_t stepsLeft;
    int depthLeft;
};

}  // namespace desk::applescript
