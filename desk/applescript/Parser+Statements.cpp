#include "desk/applescript/Failure.h"
#include "desk/applescript/Parser.h"

#include <array>
#include <utility>

namespace desk::applescript {

Block Parser::parseBlock() {
    const Nesting level(*this);
    Block block;
    while (true) {
        if (peek().kind == TokenKind::endOfLine) {
            next();
        } else if (isAtWord("end") || isAtWord("else") || isAtWord("on") || peek().kind == TokenKind::endOfScript) {
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
    if (!isAtWord("end") || isOther) {
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
        Statement (*parse)(Parser&);
    };
    static constexpr std::array<Entry, 14> entries{{
        {"set", [](Parser& parser) { return parser.parseSet(); }},
        {"copy", [](Parser& parser) { return parser.parseCopy(); }},
        {"tell", [](Parser& parser) { return parser.parseTell(); }},
        {"if", [](Parser& parser) { return parser.parseIf(); }},
        {"repeat", [](Parser& parser) { return parser.parseRepeat(); }},
        {"exit", [](Parser& parser) { return parser.parseExit(); }},
        {"try", [](Parser& parser) { return parser.parseTry(); }},
        {"error", [](Parser& parser) { return parser.parseError(); }},
        {"return", [](Parser& parser) { return parser.parseReturn(); }},
        {"considering", [](Parser& parser) { return parser.parseConsidering(true); }},
        {"ignoring", [](Parser& parser) { return parser.parseConsidering(false); }},
        {"with", [](Parser& parser) { return parser.parseWithTimeout(); }},
        {"global",
         [](Parser& parser) {
             parser.parseGlobalDeclaration();
             return Statement{ConsideringBlock{}};
         }},
        {"local",
         [](Parser& parser) {
             parser.parseLocalDeclaration();
             return Statement{ConsideringBlock{}};
         }},
    }};
    const Nesting level(*this);
    const bool wasInFinder = isInFinder;
    isInFinder = isInFinder || lineNamesFinder();
    Statement statement;
    bool isDone = false;
    for (const Entry& entry : entries) {
        if (!isDone && accept(entry.word)) {
            statement = entry.parse(*this);
            isDone = true;
        }
    }
    if (!isDone) {
        statement.node = ExpressionStatement{parseExpression()};
    }
    isInFinder = wasInFinder;
    return statement;
}

std::size_t Parser::expectVariable() {
    const bool isWord = peek().kind == TokenKind::word && !isReserved(peek().folded);
    if (!isWord && peek().kind != TokenKind::barredWord) {
        failExpecting("variable name");
    }
    const Token name = next();
    return handler->slot(name.folded, name.text);
}

ExpressionPtr Parser::checkedTarget(ExpressionPtr target) {
    if (auto* list = std::get_if<ListLiteral>(&target->node)) {
        for (ExpressionPtr& item : list->items) {
            item = checkedTarget(std::move(item));
        }
    } else if (!std::holds_alternative<Variable>(target->node) &&
               !std::holds_alternative<PropertyAccess>(target->node) &&
               !std::holds_alternative<ElementAccess>(target->node)) {
        failExpecting("variable name or property");
    }
    return target;
}

Statement Parser::parseSet() {
    ExpressionPtr target = checkedTarget(parseReference());
    expect("to");
    return {Assignment{std::move(target), parseExpression()}};
}

Statement Parser::parseCopy() {
    ExpressionPtr value = parseExpression();
    expect("to");
    return {Assignment{checkedTarget(parseReference()), std::move(value)}};
}

Statement Parser::parseTell() {
    const bool namesFinder = lineNamesFinder();
    TellBlock tell;
    tell.target = parseReference();
    const bool isOther = std::holds_alternative<ApplicationReference>(tell.target->node) ||
                         std::holds_alternative<MeReference>(tell.target->node);
    isInFinder = namesFinder || (isInFinder && !isOther);
    if (accept("to")) {
        tell.body.push_back(parseStatement());
    } else {
        expectEndOfLine();
        tell.body = parseBlockAndEnd("tell");
    }
    return {std::move(tell)};
}

Statement Parser::parseIf() {
    IfChain chain;
    ExpressionPtr condition = parseExpression();
    accept("then");
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
        accept("then");
        expectEndOfLine();
        chain.branches.emplace_back(std::move(condition), parseBlock());
    }
    expectEnd("if");
    return {std::move(chain)};
}

Statement Parser::parseRepeat() {
    if (accept("with")) {
        return parseRepeatWith();
    }
    const bool stopsWhen = isAtWord("until");
    if (accept("while") || accept("until")) {
        ExpressionPtr condition = parseExpression();
        expectEndOfLine();
        return {RepeatCondition{std::move(condition), stopsWhen, parseBlockAndEnd("repeat")}};
    }
    if (peek().kind == TokenKind::endOfLine) {
        return {RepeatForever{parseBlockAndEnd("repeat")}};
    }
    ExpressionPtr times = parseExpression();
    expect("times");
    expectEndOfLine();
    return {RepeatTimes{std::move(times), parseBlockAndEnd("repeat")}};
}

Statement Parser::parseRepeatWith() {
    const std::size_t slot = expectVariable();
    if (accept("in")) {
        ExpressionPtr list = parseExpression();
        expectEndOfLine();
        return {RepeatList{slot, std::move(list), parseBlockAndEnd("repeat")}};
    }
    expect("from");
    RepeatRange range{slot, parseExpression(), nullptr, nullptr, {}};
    expect("to");
    range.to = parseExpression();
    if (accept("by")) {
        range.by = parseExpression();
    }
    expectEndOfLine();
    range.body = parseBlockAndEnd("repeat");
    return {std::move(range)};
}

Statement Parser::parseExit() {
    accept("repeat");
    return {ExitRepeat{}};
}

Statement Parser::parseTry() {
    expectEndOfLine();
    TryBlock block;
    block.body = parseBlock();
    if (accept("on error")) {
        if (!isAtEndOfLine() && !isAtWord("number")) {
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
    if (!isAtEndOfLine() && !isAtWord("number")) {
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

Statement Parser::parseConsidering(bool considers) {
    const std::string_view name = considers ? "considering" : "ignoring";
    ConsideringBlock block;
    while (!isAtEndOfLine()) {
        considers = accept("but ignoring") ? false : accept("but considering") ? true : considers;
        if (accept("case")) {
            block.considersCase = considers;
        } else {
            next();
        }
    }
    block.body = parseBlockAndEnd(name);
    return {std::move(block)};
}

// Finder answers at once here, so that its time limit never counts.
Statement Parser::parseWithTimeout() {
    const bool isTransaction = isAtWord("transaction");
    if (!isTransaction) {
        expect("timeout");
        accept("of");
        parseExpression();
        if (!accept("seconds")) {
            expect("second");
        }
    } else {
        next();
    }
    expectEndOfLine();
    return {ConsideringBlock{std::nullopt, parseBlockAndEnd(isTransaction ? "transaction" : "timeout")}};
}

}  // namespace desk::applescript
