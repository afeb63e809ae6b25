#include "desk/applescript/Parser.h"

#include "desk/applescript/Failure.h"
#include "desk/applescript/TextCase.h"

#include <algorithm>
#include <utility>

namespace desk::applescript {

namespace {

constexpr int deepestNesting = 400;
constexpr int deepestExpression = 200;

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
            continue;
        }
        parseTopLevel();
        expectEndOfLine();
    }
    resolveGlobals();
    return std::move(program);
}

void Parser::parseTopLevel() {
    if (isAtWord("on") || isAtWord("to")) {
        parseHandler();
    } else if (isAtWord("property") || isAtWord("prop")) {
        parsePropertyDeclaration();
    } else {
        program.main.body.push_back(parseStatement());
    }
}

void Parser::parseHandler() {
    next();
    if (peek().kind != TokenKind::word && peek().kind != TokenKind::barredWord) {
        failExpecting("identifier");
    }
    Handler parsed;
    handler = &parsed;
    parsed.name = next().folded;
    const bool isInBraces = parsed.name == "run" && isAtSymbol("{");
    if (isInBraces || isAtSymbol("(")) {
        next();
        const std::string_view close = isInBraces ? "}" : ")";
        while (!isAtSymbol(close)) {
            parsed.parameters.push_back(expectVariable());
            if (!acceptSymbol(",")) {
                break;
            }
        }
        expectSymbol(close);
    } else if (parsed.name == "run" && !isAtEndOfLine()) {
        parsed.parameters.push_back(expectVariable());
        parsed.takesArgumentsSeparately = false;
    } else if (parsed.name != "run") {
        failExpecting("“(”");
    }
    expectEndOfLine();
    parsed.body = parseBlockAndEnd(parsed.name);
    handler = &program.main;
    program.handlers.push_back(std::move(parsed));
}

void Parser::parsePropertyDeclaration() {
    next();
    const Token name = peek();
    const std::size_t slot = expectVariable();
    program.main.declaredGlobal.insert(name.folded);
    expectSymbol(":");
    program.main.body.push_back({Assignment{make(Variable{slot}), parseExpression()}});
}

void Parser::parseGlobalDeclaration() {
    do {
        handler->declaredGlobal.insert(peek().folded);
        expectVariable();
    } while (acceptSymbol(","));
}

void Parser::parseLocalDeclaration() {
    do {
        expectVariable();
    } while (acceptSymbol(","));
}

// A handler's variable is one of the script's globals if either the handler or the script declares it so.
void Parser::resolveGlobals() {
    for (Handler& each : program.handlers) {
        each.globals.resize(each.names.size());
        for (std::size_t slot = 0; slot < each.names.size(); ++slot) {
            const std::string& name = each.names[slot];
            const bool isParameter =
                std::find(each.parameters.begin(), each.parameters.end(), slot) != each.parameters.end();
            if (!isParameter && (each.declaredGlobal.contains(name) || program.main.declaredGlobal.contains(name))) {
                each.globals[slot] = program.main.slot(name, each.writtenNames[slot]);
            }
        }
    }
    program.globalCount = program.main.names.size();
    program.main.globals.resize(program.globalCount);
    for (std::size_t slot = 0; slot < program.globalCount; ++slot) {
        program.main.globals[slot] = slot;
    }
}

const Token& Parser::peek(std::size_t ahead) const {
    return tokens[std::min(position + ahead, tokens.size() - 1)];
}

Token Parser::next() {
    Token token = peek();
    position = std::min(position + 1, tokens.size() - 1);
    return token;
}

bool Parser::isAtSymbol(std::string_view symbol) const {
    return peek().kind == TokenKind::symbol && peek().folded == symbol;
}

bool Parser::isAtWord(std::string_view word, std::size_t ahead) const {
    return peek(ahead).kind == TokenKind::word && peek(ahead).folded == word;
}

std::size_t Parser::wordsAhead(std::string_view term, std::size_t ahead) const {
    // Most terms are ruled out by their first letter.
    if (term.empty() || peek(ahead).folded.empty() || peek(ahead).folded.front() != foldedCase(term.front())) {
        return 0;
    }
    std::size_t count = 0;
    while (!term.empty()) {
        const std::size_t blank = std::min(term.find(' '), term.size());
        const Token& token = peek(ahead + count);
        const bool hasWords = token.kind == TokenKind::word || token.kind == TokenKind::symbol;
        const auto isSameLetter = [](char left, char right) { return left == foldedCase(right); };
        if (!hasWords || !std::equal(token.folded.begin(), token.folded.end(), term.begin(),
                                     term.begin() + static_cast<std::ptrdiff_t>(blank), isSameLetter)) {
            return 0;
        }
        ++count;
        term.remove_prefix(std::min(blank + 1, term.size()));
    }
    return count;
}

bool Parser::isAtEndOfLine() const {
    return peek().kind == TokenKind::endOfLine || peek().kind == TokenKind::endOfScript;
}

bool Parser::accept(std::string_view term) {
    const std::size_t count = wordsAhead(term);
    position += count;
    return count > 0;
}

bool Parser::acceptSymbol(std::string_view symbol) {
    return isAtSymbol(symbol) && accept(symbol);
}

void Parser::expect(std::string_view word) {
    if (!accept(word)) {
        failExpecting("“" + std::string(word) + "”");
    }
}

void Parser::expectSymbol(std::string_view symbol) {
    if (!acceptSymbol(symbol)) {
        failExpecting("“" + std::string(symbol) + "”");
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

bool Parser::lineNamesFinder() const {
    for (std::size_t ahead = 0; peek(ahead).kind != TokenKind::endOfLine; ++ahead) {
        if (peek(ahead).kind == TokenKind::endOfScript) {
            break;
        }
        if (isAtWord("application", ahead) || isAtWord("app", ahead)) {
            const bool isById = isAtWord("id", ahead + 1);
            const Token& name = peek(ahead + (isById ? 2 : 1));
            if (name.kind == TokenKind::string && name.text == (isById ? "com.apple.finder" : "Finder")) {
                return true;
            }
        }
    }
    return false;
}

void Parser::failExpecting(const std::string& expected) const {
    failSyntax(expected, foundHere());
}

std::string Parser::foundHere() const {
    const Token& token = peek();
    if (token.kind != TokenKind::word) {
        return token.description();
    }
    if (token.folded == "end" && peek(1).kind == TokenKind::word) {
        return "“end " + peek(1).text + "”";
    }
    return isReserved(token.folded) ? "“" + token.text + "”" : token.description();
}

ExpressionPtr Parser::make(Expression::Node node, std::initializer_list<const Expression*> children) const {
    auto expression = std::make_unique<Expression>();
    expression->node = std::move(node);
    for (const Expression* child : children) {
        expression->depth = std::max(expression->depth, child == nullptr ? 1 : child->depth + 1);
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
