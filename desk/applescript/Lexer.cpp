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

constexpr std::array<std::string_view, 8> symbols{"≠", "(", ")", "&", "=", "-", "{", "}"};

}  // namespace

std::string ScriptToken::description() const {
    switch (kind) {
    case TokenKind::word:
        return "identifier";
    case TokenKind::integer:
    case TokenKind::real:
        return "number";
    case TokenKind::string:
        return "“\"”";
    case TokenKind::symbol:
        return "“" + text + "”";
    case TokenKind::endOfLine:
        return "end of line";
    case TokenKind::endOfScript:
        return "end of script";
    }
    return "unknown token";
}

std::vector<ScriptToken> Lexer::tokenize() {
    while (position < source.size()) {
        if (skipBlank()) {
            continue;
        }
        const char character = peek();
        if (character == '\n' || character == '\r') {
            readNewline();
        } else if (character == '"') {
            readString();
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
    } else if (at("--")) {
        position = std::min(source.find_first_of("\r\n", position), source.size());
    } else if (at("¬\n")) {
        position += std::string_view("¬\n").size();
    } else {
        return false;
    }
    return true;
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

void Lexer::readWord() {
    const std::size_t start = position;
    while (isWordPart(peek())) {
        ++position;
    }
    add(TokenKind::word, std::string(source.substr(start, position - start)));
}

void Lexer::readNumber() {
    const std::size_t start = position;
    while (isDigit(peek()) || (peek() == '.' && isDigit(peek(1)))) {
        ++position;
    }
    if (isWordStart(peek())) {
        fail(ErrorNumber::misplacedToken, "A identifier can’t go after this number.");
    }
    const std::string text(source.substr(start, position - start));
    const char* end = text.data() + text.size();
    add(TokenKind::real, text);
    ScriptToken& token = tokens.back();
    const auto whole = std::from_chars(text.data(), end, token.integer);
    if (whole.ec == std::errc() && whole.ptr == end) {
        token.kind = TokenKind::integer;
    } else if (std::from_chars(text.data(), end, token.real).ptr != end) {
        failSyntax("end of line, etc.", "number");
    }
}

void Lexer::readSymbol() {
    const auto symbol = std::find_if(symbols.begin(), symbols.end(), [&](const auto& each) { return at(each); });
    if (symbol == symbols.end()) {
        failSyntax("expression", "unknown token");
    }
    position += symbol->size();
    add(TokenKind::symbol, std::string(*symbol));
}

void Lexer::add(TokenKind kind, std::string text) {
    std::string folded = kind == TokenKind::string ? std::string() : foldedCase(text);
    tokens.push_back({kind, std::move(text), std::move(folded)});
}

char Lexer::peek(std::size_t ahead) const {
    return position + ahead < source.size() ? source[position + ahead] : '\0';
}

}  // namespace desk::applescript
