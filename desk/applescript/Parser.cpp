#include "desk/applescript/Parser.h"

#include "desk/applescript/Failure.h"

#include <algorithm>
#include <array>
#include <utility>

namespace desk::applescript {

namespace {

constexpr int deepestNesting = 400;
constexpr int deepestExpression = 200;

// Words that can't be the name of a variable.
constexpr auto reservedWords = std::to_array<std::string_view>(
    {"and", "as", "else", "end",    "error",  "every", "exit", "from", "if", "in",  "is",   "mod",    "not",
     "of",  "on", "or",   "repeat", "return", "set",   "tell", "then", "to", "try", "with", "without"});

bool isReserved(std::string_view folded) {
    return std::find(reservedWords.begin(), reservedWords.end(), folded) != reservedWords.end();
}

[[noreturn]] void failTooDeep() {
    fail(ErrorNumber::stackOverflow, "Stack overflow.");
}

}  // namespace

Parser::Nesting::Nesting(Parser& owner) : parser(owner) {
    if (parser.nesting >= deepestNesting) {
        failTooDeep();
    }
    ++parser.nesting;
}

Program Parser::parse() {
    while (peek().kind != TokenKind::endOfScript) {
        if (peek().kind == TokenKind::endOfLine) {
            next();
        } else if (isAt("on run")) {
            parseRunHandler();
            expectEndOfLine();
        } else {
            program.main.push_back(parseStatement());
            expectEndOfLine();
        }
    }
    return std::move(program);
}

std::size_t Parser::expectVariable() {
    if (peek().kind != TokenKind::word || isReserved(peek().folded)) {
        failExpecting("variable name");
    }
    const ScriptToken name = next();
    return program.slot(name.folded, name.text);
}

const ScriptToken& Parser::peek(std::size_t ahead) const {
    return tokens[std::min(position + ahead, tokens.size() - 1)];
}

ScriptToken Parser::next() {
    ScriptToken token = peek();
    position = std::min(position + 1, tokens.size() - 1);
    return token;
}

bool Parser::isAtEndOfLine() const {
    return peek().kind == TokenKind::endOfLine || peek().kind == TokenKind::endOfScript;
}

std::size_t Parser::wordsAhead(std::string_view words) const {
    std::size_t count = 0;
    while (!words.empty()) {
        const std::size_t blank = std::min(words.find(' '), words.size());
        const ScriptToken& token = peek(count);
        const bool hasWords = token.kind == TokenKind::word || token.kind == TokenKind::symbol;
        if (!hasWords || token.folded != words.substr(0, blank)) {
            return 0;
        }
        ++count;
        words.remove_prefix(std::min(blank + 1, words.size()));
    }
    return count;
}

bool Parser::accept(std::string_view words) {
    const std::size_t count = wordsAhead(words);
    position += count;
    return count > 0;
}

void Parser::expect(std::string_view words) {
    if (!accept(words)) {
        failExpecting("“" + std::string(words) + "”");
    }
}

void Parser::expectEndOfLine() {
    if (!isAtEndOfLine()) {
        failExpecting("end of line, etc.");
    }
    if (peek().kind == TokenKind::endOfLine) {
        next();
    }
}

void Parser::failExpecting(const std::string& expected) const {
    failSyntax(expected, foundHere());
}

std::string Parser::foundHere() const {
    const ScriptToken& token = peek();
    if (token.kind != TokenKind::word) {
        return token.description();
    }
    if (token.folded == "end" && peek(1).kind == TokenKind::word) {
        return "“end " + peek(1).text + "”";
    }
    return isReserved(token.folded) ? "“" + token.text + "”" : token.description();
}

ExpressionPtr Parser::make(Expression::Node node, std::initializer_list<const Expression*> children) {
    auto expression = std::make_unique<Expression>();
    expression->node = std::move(node);
    for (const Expression* child : children) {
        expression->depth = std::max(expression->depth, child->depth + 1);
    }
    checkDepth(*expression);
    return expression;
}

void Parser::checkDepth(const Expression& expression) {
    if (expression.depth > deepestExpression) {
        failTooDeep();
    }
}

}  // namespace desk::applescript
