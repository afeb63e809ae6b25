#include "desk/applescript/Failure.h"
#include "desk/applescript/Parser.h"
#include "desk/applescript/TextCase.h"

#include <algorithm>
#include <array>
#include <utility>

namespace desk::applescript {

ExpressionPtr Parser::parsePrimary() {
    const Nesting level(*this);
    switch (peek().kind) {
    case TokenKind::integer:
        return make(Literal{Value::number(next().integer)});
    case TokenKind::real:
        return make(Literal{Value(Value::Storage(next().real))});
    case TokenKind::string:
        return make(Literal{Value(Text::literal(next().text))});
    case TokenKind::word:
        return parseWord();
    case TokenKind::barredWord:
        return parseVariable();
    case TokenKind::ordinal:
        return parseOrdinal();
    default:
        break;
    }
    if (isAtSymbol("{")) {
        return parseBraces();
    }
    if (!acceptSymbol("(")) {
        failExpecting("expression");
    }
    ExpressionPtr inner = parseExpression();
    expectSymbol(")");
    return inner;
}

ExpressionPtr Parser::parseBraces() {
    next();
    std::size_t words = 0;
    while (peek(words).kind == TokenKind::word || peek(words).kind == TokenKind::barredWord) {
        ++words;
    }
    if (words > 0 && peek(words).kind == TokenKind::symbol && peek(words).folded == ":") {
        return parseRecord();
    }
    ListLiteral list;
    auto expression = make(ListLiteral{});
    while (!isAtSymbol("}")) {
        list.items.push_back(parseExpression());
        expression->depth = std::max(expression->depth, list.items.back()->depth + 1);
        if (!acceptSymbol(",")) {
            break;
        }
    }
    expectSymbol("}");
    expression->node = std::move(list);
    checkDepth(*expression);
    return expression;
}

ExpressionPtr Parser::parseRecord() {
    RecordLiteral record;
    auto expression = make(RecordLiteral{});
    do {
        std::string key;
        while (peek().kind == TokenKind::word || peek().kind == TokenKind::barredWord) {
            key += (key.empty() ? "" : " ") + next().folded;
        }
        if (key.empty()) {
            failExpecting("identifier");
        }
        expectSymbol(":");
        record.entries.emplace_back(std::move(key), parseExpression());
        expression->depth = std::max(expression->depth, record.entries.back().second->depth + 1);
    } while (acceptSymbol(","));
    expectSymbol("}");
    expression->node = std::move(record);
    checkDepth(*expression);
    return expression;
}

ExpressionPtr Parser::parseWord() {
    if (accept("my")) {
        if (peek(1).kind == TokenKind::symbol && peek(1).folded == "(") {
            return parseHandlerCall(true);
        }
        return parseVariable();
    }
    if (accept("its")) {
        ExpressionPtr head = parsePrimary();
        attach(*head, make(ItReference{}));
        return head;
    }
    if (ExpressionPtr constant = parseConstant()) {
        return constant;
    }
    if (isAtWord("application") || isAtWord("app")) {
        return parseApplication();
    }
    if (accept("every")) {
        bool isPlural = false;
        const ClassWords* words = classAhead(isPlural);
        if (words == nullptr) {
            failExpecting("class name");
        }
        return parseElement(*words, true);
    }
    return isAtOrdinal() ? parseOrdinal() : parseTerm();
}

ExpressionPtr Parser::parseConstant() {
    struct Constant {
        std::string_view words;
        Expression::Node (*make)();
    };
    static constexpr auto text = [](const char* bytes) -> Expression::Node {
        return Literal{Value(Text::literal(bytes))};
    };
    static constexpr auto constants = std::to_array<Constant>({
        {"true", []() -> Expression::Node { return Literal{Value::boolean(true)}; }},
        {"false", []() -> Expression::Node { return Literal{Value::boolean(false)}; }},
        {"missing value", []() -> Expression::Node { return Literal{Value(MissingValue{})}; }},
        {"linefeed", [] { return text("\n"); }},
        {"return", [] { return text("\r"); }},
        {"tab", [] { return text("\t"); }},
        {"space", [] { return text(" "); }},
        {"quote", [] { return text("\""); }},
        {"pi", []() -> Expression::Node { return Literal{Value(Value::Storage(3.141592653589793))}; }},
        {"it", []() -> Expression::Node { return ItReference{}; }},
        {"me", []() -> Expression::Node { return MeReference{}; }},
        {"AppleScript", []() -> Expression::Node { return AppleScriptReference{}; }},
        {"result", []() -> Expression::Node { return ResultReference{}; }},
    });
    for (const Constant& constant : constants) {
        if (accept(constant.words)) {
            return make(constant.make());
        }
    }
    return nullptr;
}

ExpressionPtr Parser::parseApplication() {
    const bool hasId = isAtWord("id", 1);
    if (peek(hasId ? 2 : 1).kind != TokenKind::string) {
        return parseTerm();
    }
    next();
    accept("id");
    return make(ApplicationReference{parsePrimary(), hasId});
}

const CommandWords* Parser::commandAhead() const {
    const CommandWords* best = nullptr;
    std::size_t longest = 0;
    for (const CommandWords& entry : commandWords()) {
        const std::size_t count = wordsAhead(entry.words);
        if (count > longest && (!entry.isFinders || isInFinder)) {
            longest = count;
            best = &entry;
        }
    }
    return best;
}

const ClassWords* Parser::classAhead(bool& isPlural) const {
    const ClassWords* best = nullptr;
    std::size_t longest = 0;
    for (const ClassWords& entry : classWords()) {
        const std::size_t singular = wordsAhead(entry.singular);
        const std::size_t plural = wordsAhead(entry.plural);
        if (std::max(singular, plural) > longest && (!entry.isFinders || isInFinder)) {
            longest = std::max(singular, plural);
            isPlural = plural > 0;
            best = &entry;
        }
    }
    return best;
}

// Words that Finder has no part in are a property only where something owns it; else they are a variable's name.
const PropertyWords* Parser::propertyAhead() const {
    const PropertyWords* best = nullptr;
    std::size_t longest = 0;
    for (const PropertyWords& entry : propertyWords()) {
        const std::size_t count = wordsAhead(entry.words);
        const bool isOwned = isAtWord("of", count) || isAtWord("in", count) || count > 1 || isInFilter;
        const bool isKnown = isInFinder ? entry.isFinders || isOwned : isOwned && !entry.isFindersOnly;
        if (count > longest && isKnown) {
            longest = count;
            best = &entry;
        }
    }
    return best;
}

ExpressionPtr Parser::parseTerm() {
    bool isPlural = false;
    const CommandWords* command = commandAhead();
    const ClassWords* classes = classAhead(isPlural);
    const PropertyWords* property = propertyAhead();
    const std::size_t commandLength = command == nullptr ? 0 : wordsAhead(command->words);
    const std::size_t propertyLength = property == nullptr ? 0 : wordsAhead(property->words);
    const std::size_t classLength = classes == nullptr ? 0 : wordsAhead(isPlural ? classes->plural : classes->singular);
    if (propertyLength > 0 && propertyLength >= std::max(commandLength, classLength)) {
        accept(property->words);
        return make(PropertyAccess{foldedCase(property->words), property->term, nullptr});
    }
    if (commandLength > 0 && commandLength >= classLength) {
        return parseCommand(*command);
    }
    if (classLength > 0) {
        return parseElement(*classes, false);
    }
    const bool isCall = peek(1).kind == TokenKind::symbol && peek(1).folded == "(";
    return isCall && !isReserved(peek().folded) ? parseHandlerCall(false) : parseVariable();
}

ExpressionPtr Parser::parseVariable() {
    if (peek().kind == TokenKind::word && isReserved(peek().folded)) {
        failExpecting("expression");
    }
    return make(Variable{expectVariable()});
}

}  // namespace desk::applescript
