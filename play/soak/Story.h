// One story on one fresh desk: plays what an author tells, line by line, brings the desk to rest where the author says so, and checks it after each line and at each rest. It
// keeps the lines that did something, for whoever wants to hear them again.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "play/soak/Author.h"
#include "play/soak/Finding.h"

namespace play {

class Session;

// Readies a fresh session before its story; what it answers is kept as long as the session. Tests plant faults with it.
using Preparation = std::function<std::shared_ptr<void>(Session& session)>;

struct PlayedLine {
    std::string text;
    std::int64_t lastWindow;  // the highest number of a Finder window by the time that it had been played
};

struct StoryEnd {
    std::optional<Finding> finding;
    std::vector<PlayedLine> lines;
    std::size_t told = 0;  // of these before the last rest
    std::int64_t rests = 0;
    std::int64_t barsAtRest = 0;  // all rests together
};

StoryEnd playStory(Author& author, const Preparation& prepare);

}  // namespace play
