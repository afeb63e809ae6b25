// What closed windows, Finder's and the about window, leave behind: subscriptions, and memory in use. It looks each time that a story has closed all of them; what it finds may depend on nothing that happened before.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "play/soak/Finding.h"

namespace play {

class Session;

class Leftovers {
public:
    // After each line.
    void look(const Session& session);
    // At rest, all windows closed since the rest before. What the story itself has written down meanwhile doesn't count.
    std::optional<Finding> check(const Session& session, std::int64_t bytesOfStory);

private:
    std::optional<Finding> checkSubscriptions(const Session& session) const;
    std::optional<Finding> checkMemory(std::int64_t bytesOfStory);

    std::optional<std::int32_t> finderAtLaunch;  // its process
    std::vector<std::int64_t> bytesInUse;        // each time
};

}  // namespace play
