// One token of a script. The lexer makes them, the parser reads them; nothing of the grammar is known here.
#pragma once

#include <cstdint>
#include <string>

namespace desk::applescript {

enum class TokenKind { word, integer, real, string, symbol, endOfLine, endOfScript };

struct ScriptToken {
    TokenKind kind = TokenKind::endOfScript;
    // A word as written, a string without its quotes and escapes, a symbol.
    std::string text;
    // A word in lower case, with which keywords and terms are compared; a symbol.
    std::string folded;
    std::int64_t integer = 0;
    double real = 0;

    // As the compiler's messages name what they found.
    std::string description() const;
};

}  // namespace desk::applescript
