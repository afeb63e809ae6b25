// Turns the source of a script into tokens: strips comments, joins continued lines, undoes the escapes of literals.
#pragma once

#include "desk/applescript/ScriptToken.h"

#include <string_view>
#include <vector>

namespace desk::applescript {

class Lexer {
public:
    explicit Lexer(std::string_view text) : source(text) {}

    // Always ends with an end of line and the end of the script. Throws Failure for what is no token.
    std::vector<ScriptToken> tokenize();

private:
    bool skipBlank();
    void readNewline();
    void readString();
    void readWord();
    void readNumber();
    void readSymbol();
    void add(TokenKind kind, std::string text);
    bool at(std::string_view text) const { return source.substr(position, text.size()) == text; }
    char peek(std::size_t ahead = 0) const;

    std::string_view source;
    std::size_t position = 0;
    std::vector<ScriptToken> tokens;
};

}  // namespace desk::applescript
