// Who makes up a story: at random from a seed, or from a list of lines. It says what comes next and when the desk is to come to rest; it checks nothing.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "play/soak/Actions.h"
#include "play/soak/Random.h"

namespace play {

class Session;

// Without a line: the desk is brought to rest, and looked at; then, if so told, once more without any window.
struct Told {
    std::optional<std::string> line;
    bool clears = false;
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
    void refused() override;

    // How many lines of each action were played.
    using Tally = std::map<std::string_view, std::int64_t>;
    const Tally& tally() const { return counts; }

private:
    struct Weighted {
        double upTo;  // the weights up to and with this one
        const Action* action;
    };

    void addActions(const std::vector<Action>& table, bool areFaults);
    Told rest();
    void write(const Session& session);

    Random random;
    std::int64_t stepsLeft;
    std::size_t mostWindows;
    std::size_t fewestWindows;  // aimed at
    std::vector<Weighted> actions;
    std::deque<std::string> written;
    std::string_view action;  // that wrote it
    Tally counts;
    int untilRest = 0;
    bool hasBegun = false;
    bool isAtRest = false;
    std::int64_t rests = 0;
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
