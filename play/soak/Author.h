// Who makes up a story: at random from a seed, or from a list of lines. It says what comes next and when the desk is to come to rest; it checks nothing.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "play/soak/Actions.h"
#include "play/soak/Random.h"

namespace play {

class Session;

// Without a line: the desk is brought to rest, and looked at.
struct Told {
    std::optional<std::string> line;
};

class Author {
public:
    virtual ~Author() = default;
    // Empty at the end of the story, which is told at rest.
    virtual std::optional<Told> next(const Session& session) = 0;
    // The line told last couldn't be played.
    virtual void refused() {}
};

class RandomAuthor final : public Author {
public:
    RandomAuthor(std::uint64_t seed, std::int64_t theSteps);
    std::optional<Told> next(const Session& session) override;
    void refused() override { ++stepsLeft; }

private:
    struct Weighted {
        double upTo;  // the weights up to and with this one
        Lines (*lines)(const Chooser& choose);
    };

    void addActions(const std::vector<Action>& actions, bool areFaults);
    void write(const Session& session);

    Random random;
    std::int64_t stepsLeft;
    std::size_t mostWindows;
    std::vector<Weighted> actions;
    std::deque<std::string> written;
    int untilRest = 0;
    bool hasBegun = false;
    bool isAtRest = false;
};

class ListAuthor final : public Author {
public:
    explicit ListAuthor(const std::vector<std::string>& theLines) : lines(theLines) {}
    std::optional<Told> next(const Session& session) override;

private:
    const std::vector<std::string>& lines;
    std::size_t position = 0;
};

}  // namespace play
