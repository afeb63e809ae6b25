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

// The command's exit code: 0 when everything held; 1 after a failed check, with the seed and the shortest script for it written out. The lines that only bring the desk to rest don't count.
int runSoak(const SoakOptions& options, std::ostream& output);

}  // namespace play
