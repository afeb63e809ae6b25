// The command `desk --soak SEED STEPS`: shakes the machine at random, and checks it whenever it has come to rest. A run longer than one story goes on with the next
// seed, on a fresh desk; so whatever fails fails again alone, by its own seed.
#pragma once

#include <cstdint>
#include <iosfwd>

#include "play/soak/Story.h"

namespace play {

inline constexpr std::int64_t stepsOfStory = 5000;

struct SoakOptions {
    std::uint64_t seed = 1;
    std::int64_t steps = stepsOfStory;
    bool isVerbose = false;  // tells how often each action occurred
    Preparation prepare;
};

// Answers the exit code of the command: 0 when everything held, else 1, after writing the seed and as short a script as can be found that fails the same check. Lines that bring the desk to rest
// aren't among the counted ones.
int runSoak(const SoakOptions& options, std::ostream& output);

}  // namespace play
