#include "desk/applescript/Parser.h"

#include <array>
#include <utility>

namespace desk::applescript {

void Parser::parseRunHandler() {
    expect("on run");
    if (!isAtEndOfLine()) {
        program.argumentsSlot = expectVariable();
    }
    expectEndOfLine();
    program.runHandler = parseBlockAndEnd("run");
}

Block Parser::parseBlock() {
    Block block;
    while (true) {
        if (peek().kind == TokenKind::endOfLine) {
            next();
        } else if (isAt("end") || isAt("else") || isAt("on") || peek().kind == TokenKind::endOfScript) {
            return block;
        } else {
            block.push_back(parseStatement());
            expectEndOfLine();
        }
    }
}

Block Parser::parseBlockAndEnd(std::string_view name) {
    Block block = parseBlock();
    expectEnd(name);
    return block;
}

void Parser::expectEnd(std::string_view name) {
    const bool isOther = peek(1).kind != TokenKind::endOfLine && peek(1).folded != name;
    if (!isAt("end") || isOther) {
        failExpecting("“end” or “end " + std::string(name) + "”");
    }
    next();
    if (!isAtEndOfLine()) {
        next();
    }
}

Statement Parser::parseStatement() {
    struct Entry {
        std::string_view word;
        Statement (Parser::*parse)();
    };
    static constexpr auto entries = std::to_array<Entry>({{"set", &Parser::parseSet},
                                                          {"tell", &Parser::parseTell},
                                                          {"if", &Parser::parseIf},
                                                          {"repeat", &Parser::parseRepeat},
                                                          {"try", &Parser::parseTry},
                                                          {"error", &Parser::parseError},
                                                          {"return", &Parser::parseReturn}});
    const Nesting level(*this);
    for (const Entry& entry : entries) {
        if (accept(entry.word)) {
            return (this->*entry.parse)();
        }
    }
    return {ExpressionStatement{parseExpression()}};
}

Statement Parser::parseSet() {
    ExpressionPtr target = parseReference();
    if (!std::holds_alternative<Variable>(target->node) && !std::holds_alternative<PropertyAccess>(target->node)) {
        failExpecting("variable name or property");
    }
    expect("to");
    return {Assignment{std::move(target), parseExpression()}};
}

Statement Parser::parseTell() {
    const bool wasInFinder = isInFinder;
    TellBlock tell;
    tell.target = parseReference();
    isInFinder = true;
    if (accept("to")) {
        tell.body.push_back(parseStatement());
    } else {
        expectEndOfLine();
        tell.body = parseBlockAndEnd("tell");
    }
    isInFinder = wasInFinder;
    return {std::move(tell)};
}

Statement Parser::parseIf() {
    IfChain chain;
    ExpressionPtr condition = parseExpression();
    expect("then");
    if (!isAtEndOfLine()) {
        Block single;
        single.push_back(parseStatement());
        chain.branches.emplace_back(std::move(condition), std::move(single));
        return {std::move(chain)};
    }
    chain.branches.emplace_back(std::move(condition), parseBlock());
    while (accept("else")) {
        if (!accept("if")) {
            chain.otherwise = parseBlock();
            break;
        }
        condition = parseExpression();
        expect("then");
        expectEndOfLine();
        chain.branches.emplace_back(std::move(condition), parseBlock());
    }
    expectEnd("if");
    return {std::move(chain)};
}

Statement Parser::parseRepeat() {
    expect("with");
    RepeatRange range{expectVariable(), nullptr, nullptr, {}};
    expect("from");
    range.from = parseExpression();
    expect("to");
    range.to = parseExpression();
    expectEndOfLine();
    range.body = parseBlockAndEnd("repeat");
    return {std::move(range)};
}

Statement Parser::parseTry() {
    expectEndOfLine();
    TryBlock block;
    block.body = parseBlock();
    if (accept("on error")) {
        if (!isAtEndOfLine() && !isAt("number")) {
            block.messageSlot = expectVariable();
        }
        if (accept("number")) {
            block.numberSlot = expectVariable();
        }
        expectEndOfLine();
        block.onError = parseBlock();
    }
    expectEnd("try");
    return {std::move(block)};
}

Statement Parser::parseError() {
    RaiseError raise;
    if (!isAtEndOfLine() && !isAt("number")) {
        raise.message = parseExpression();
    }
    if (accept("number")) {
        raise.number = parseExpression();
    }
    return {std::move(raise)};
}

Statement Parser::parseReturn() {
    ReturnStatement statement;
    if (!isAtEndOfLine()) {
        statement.value = parseExpression();
    }
    return {std::move(statement)};
}

}  // namespace desk::applescript
