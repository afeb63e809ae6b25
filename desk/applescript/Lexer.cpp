#include "desk/applescript/Lexer.h"

#include "desk/applescript/Failure.h"
#include "desk/applescript/TextCase.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace desk::applescript {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isWordStart(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') || character == '_';
}

bool isWordPart(char character) {
    return isWordStart(character) || isDigit(character);
}

struct Symbol {
    std::string_view written;
    std::string_view meaning;
};

// Longer spellings first.
constexpr std::array<Symbol, 26> symbols{
    {{"≠", "≠"}, {"≤", "≤"}, {"≥", "≥"}, {"÷", "/"}, {"/=", "≠"}, {"<=", "≤"}, {">=", "≥"}, {"(", "("},  {")", ")"},
     {"{", "{"}, {"}", "}"}, {",", ","}, {":", ":"}, {"&", "&"},  {"+", "+"},  {"-", "-"},  {"−", "-"},  {"*", "*"},
     {"×", "*"}, {"/", "/"}, {"^", "^"}, {"=", "="}, {"<", "<"},  {">", ">"},  {";", ";"},  {"\\", "\\"}}};

}  // namespace

std::string Token::description() const {
    switch (kind) {
    case TokenKind::word:
    case TokenKind::barredWord:
        return "identifier";
    case TokenKind::integer:
    case TokenKind::real:
    case TokenKind::ordinal:
        return "number";
    case TokenKind::string:
        return "“\"”";
    case TokenKind::symbol:
        return "“" + text + "”";
    case TokenKind::possessive:
        return "“'s”";
    case TokenKind::endOfLine:
        return "end of line";
    case TokenKind::endOfScript:
        return "end of script";
    }
    return "unknown token";
}

std::vector<Token> Lexer::tokenize() {
    while (position < source.size()) {
        if (skipBlank()) {
            continue;
        }
        const char character = peek();
        if (character == '\n' || character == '\r') {
            readNewline();
        } else if (character == '"') {
            readString();
        } else if (character == '|') {
            readBarredWord();
        } else if (isWordStart(character)) {
            readWord();
        } else if (isDigit(character) || (character == '.' && isDigit(peek(1)))) {
            readNumber();
        } else {
            readSymbol();
        }
    }
    add(TokenKind::endOfLine, "");
    add(TokenKind::endOfScript, "");
    return std::move(tokens);
}

bool Lexer::skipBlank() {
    if (peek() == ' ' || peek() == '\t') {
        ++position;
    } else if (at("\xC2\xA0")) {
        position += 2;
    } else if (at("--") || peek() == '#') {
        skipLine();
    } else if (at("(*")) {
        skipBlockComment();
    } else if (at("¬")) {
        skipLine();
        position += at("\r\n") ? 2u : position < source.size() ? 1u : 0u;
    } else if (position == 0 && at("\xEF\xBB\xBF")) {
        position += 3;
    } else {
        return false;
    }
    return true;
}

void Lexer::skipLine() {
    position = std::min(source.find_first_of("\r\n", position), source.size());
}

void Lexer::skipBlockComment() {
    int depth = 0;
    do {
        if (position >= source.size()) {
            failSyntax("“*)”", "end of script");
        }
        const bool opens = at("(*");
        const bool closes = at("*)");
        depth += opens ? 1 : closes ? -1 : 0;
        position += opens || closes ? 2u : 1u;
    } while (depth > 0);
}

void Lexer::readNewline() {
    position += at("\r\n") ? 2u : 1u;
    if (!tokens.empty() && tokens.back().kind != TokenKind::endOfLine) {
        add(TokenKind::endOfLine, "");
    }
}

void Lexer::readString() {
    std::string text;
    for (++position; peek() != '"'; ++position) {
        if (position >= source.size()) {
            failSyntax("“\"”", "end of script");
        }
        if (peek() != '\\') {
            text += peek();
            continue;
        }
        ++position;
        constexpr std::string_view written = "\"\\nrt";
        constexpr std::string_view meant = "\"\\\n\r\t";
        const std::size_t index = position < source.size() ? written.find(peek()) : std::string_view::npos;
        if (index == std::string_view::npos) {
            failSyntax("“\"”", "unknown token");
        }
        text += meant[index];
    }
    ++position;
    add(TokenKind::string, std::move(text));
}

void Lexer::readBarredWord() {
    const std::size_t end = source.find_first_of("|\r\n", position + 1);
    if (end == std::string_view::npos || source[end] != '|') {
        failSyntax("“|”", end == std::string_view::npos ? "end of script" : "end of line");
    }
    add(TokenKind::barredWord, std::string(source.substr(position + 1, end - position - 1)));
    position = end + 1;
}

void Lexer::readWord() {
    const std::size_t start = position;
    while (isWordPart(peek())) {
        ++position;
    }
    // "isn't" and "doesn't" are words; "window's" is a word and a possessive.
    if (source[position - 1] == 'n' && at("'t")) {
        position += 2;
    }
    std::string text(source.substr(start, position - start));
    if (foldedCase(text) != "the") {
        add(TokenKind::word, std::move(text));
    }
}

void Lexer::readNumber() {
    const std::size_t start = position;
    const auto digits = [this] {
        while (isDigit(peek())) {
            ++position;
        }
    };
    digits();
    bool isReal = peek() == '.' && isDigit(peek(1));
    if (isReal) {
        ++position;
        digits();
    }
    const std::size_t sign = peek(1) == '+' || peek(1) == '-' ? 1 : 0;
    if ((peek() == 'e' || peek() == 'E') && isDigit(peek(1 + sign))) {
        isReal = true;
        position += 1 + sign;
        digits();
    }
    const std::string text(source.substr(start, position - start));
    constexpr std::array<std::string_view, 4> suffixes{"st", "nd", "rd", "th"};
    TokenKind kind = isReal ? TokenKind::real : TokenKind::integer;
    for (const std::string_view suffix : suffixes) {
        if (!isReal && at(suffix) && !isWordPart(peek(2))) {
            kind = TokenKind::ordinal;
            position += 2;
            break;
        }
    }
    if (isWordStart(peek())) {
        fail(ErrorNumber::misplacedToken, "A identifier can’t go after this number.");
    }
    std::int64_t integer = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), integer).ec == std::errc::result_out_of_range) {
        kind = TokenKind::real;
    }
    add(kind, text);
    tokens.back().integer = integer;
    std::from_chars(text.data(), text.data() + text.size(), tokens.back().real);
}

void Lexer::readSymbol() {
    if (at("'s") && !isWordPart(peek(2))) {
        position += 2;
        add(TokenKind::possessive, "'s");
        return;
    }
    for (const Symbol& symbol : symbols) {
        if (at(symbol.written)) {
            position += symbol.written.size();
            add(TokenKind::symbol, std::string(symbol.meaning));
            return;
        }
    }
    failSyntax("expression", "unknown token");
}

void Lexer::add(TokenKind kind, std::string text) {
    std::string folded = kind == TokenKind::string ? std::string() : foldedCase(text);
    tokens.push_back({kind, std::move(text), std::move(folded)});
}

char Lexer::peek(std::size_t ahead) const {
    return position + ahead < source.size() ? source[position + ahead] : '\0';
}

}  // namespace desk::applescript
