// Desk scripts as text: lines, words, escapes, comments. It knows the form of a script and none of its commands.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace play {

struct Word {
    std::string text;
    bool quoted = false;
    std::size_t offset = 0;  // where it begins in the line's source
};

struct ScriptLine {
    int number = 0;  // from 1
    std::string source;
    std::vector<Word> words;
};

struct ScriptError {
    int line = 0;
    std::string message;
};

// Blank lines and comments give no line. On a line that can't be read, the lines before it and the error.
struct Script {
    std::vector<ScriptLine> lines;
    std::optional<ScriptError> error;
};
Script readScript(std::string_view text);

// The words of one line; empty with a message when a quotation is open or an escape is unknown.
std::optional<std::vector<Word>> splitWords(std::string_view line, std::string& message);

}  // namespace play
