// The words behind a command, read as what the command wants them to be. What can't be read so ends the script as a bad command.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Geometry.h"
#include "play/ScriptReader.h"

namespace play {

// Ends a script: 1 for an expectation or a target, 2 for a command, an argument or a file.
struct Failure {
    int exitCode;
    std::string message;
};
[[noreturn]] void badCommand(const std::string& message);
[[noreturn]] void missingTarget(const std::string& message);

class Arguments {
public:
    Arguments(const ScriptLine& theLine, std::size_t firstWord) : line(&theLine), first(firstWord) {}

    std::size_t count() const { return line->words.size() - first; }
    void requireCount(std::size_t least, std::size_t most) const;
    Arguments after(std::size_t words) const { return {*line, first + words}; }

    const std::string& text(std::size_t index) const;
    bool is(std::size_t index, std::string_view bareWord) const;
    double number(std::size_t index) const;
    std::int64_t integer(std::size_t index) const;
    double seconds(std::size_t index) const;  // not negative
    platform::CGRect rect(std::size_t index) const;
    platform::CGPoint point(std::size_t index) const;
    // A Mac path: absolute, without its trailing slash.
    std::string path(std::size_t index) const;
    // All further words, with one blank between them.
    std::string rest(std::size_t index) const;
    // The line's own text from that word on.
    std::string_view source(std::size_t index) const;

private:
    const Word& word(std::size_t index) const;

    const ScriptLine* line;
    std::size_t first;
};

}  // namespace play
