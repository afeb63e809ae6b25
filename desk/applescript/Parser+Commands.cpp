#include "desk/applescript/Failure.h"
#include "desk/applescript/Parser.h"

#include <algorithm>
#include <array>
#include <utility>

namespace desk::applescript {

namespace {

struct ParameterWords {
    CommandTerm command;
    std::string_view label;
    bool hasValue;
};

constexpr auto parameters = std::to_array<ParameterWords>({
    {CommandTerm::make, "to", true},
    {CommandTerm::make, "at", true},
    {CommandTerm::make, "with properties", true},
    {CommandTerm::close, "saving", true},
    {CommandTerm::open, "using", true},
    {CommandTerm::doShellScript, "with administrator privileges", false},
    {CommandTerm::doShellScript, "without administrator privileges", false},
    {CommandTerm::doShellScript, "with altering line endings", false},
    {CommandTerm::doShellScript, "without altering line endings", false},
    {CommandTerm::doShellScript, "with prompt", true},
    {CommandTerm::doShellScript, "user name", true},
    {CommandTerm::doShellScript, "password", true},
});

}  // namespace

ExpressionPtr Parser::parseCommand(const CommandWords& words) {
    accept(words.words);
    if (words.term == CommandTerm::make) {
        return parseMake();
    }
    if (words.term == CommandTerm::pathTo) {
        return parsePathTo();
    }
    CommandCall call{words.term, nullptr, {}};
    if (words.term == CommandTerm::count && !accept("of")) {
        accept("in");
    }
    if (words.operand == Operand::tight) {
        call.direct = parseReference();
    } else if (words.operand == Operand::greedy) {
        call.direct = parseExpression();
    } else if (words.operand == Operand::optional && (isAtWord("application") || isAtWord("app") || isAtWord("it"))) {
        call.direct = parseReference();
    }
    return withParameters(std::move(call));
}

ExpressionPtr Parser::parseMake() {
    accept("new");
    CommandCall call{CommandTerm::make, make(Literal{Value(Value::Storage(parseClass()))}), {}};
    return withParameters(std::move(call));
}

ExpressionPtr Parser::withParameters(CommandCall call) {
    auto expression = make(Literal{}, {call.direct.get()});
    bool isFound = true;
    while (isFound) {
        isFound = false;
        for (const ParameterWords& words : parameters) {
            if (words.command == call.command && accept(words.label)) {
                call.parameters.emplace_back(words.label, words.hasValue ? parseExpression() : nullptr);
                const Expression* value = call.parameters.back().second.get();
                expression->depth = std::max(expression->depth, value == nullptr ? 1 : value->depth + 1);
                isFound = true;
            }
        }
    }
    expression->node = std::move(call);
    checkDepth(*expression);
    return expression;
}

ExpressionPtr Parser::parsePathTo() {
    static constexpr auto places = std::to_array<std::string_view>(
        {"home folder", "desktop folder", "desktop", "documents folder", "downloads folder", "pictures folder",
         "music folder", "movies folder", "library folder", "applications folder", "startup disk"});
    for (const std::string_view place : places) {
        if (accept(place)) {
            ExpressionPtr name = make(Literal{Value(Text::literal(std::string(place)))});
            return make(CommandCall{CommandTerm::pathTo, std::move(name), {}});
        }
    }
    failExpecting("expression");
}

ExpressionPtr Parser::parseHandlerCall(bool isToMe) {
    HandlerCall call{next().folded, {}, isToMe};
    auto expression = make(Literal{});
    expectSymbol("(");
    while (!isAtSymbol(")")) {
        call.arguments.push_back(parseExpression());
        expression->depth = std::max(expression->depth, call.arguments.back()->depth + 1);
        if (!acceptSymbol(",")) {
            break;
        }
    }
    expectSymbol(")");
    expression->node = std::move(call);
    checkDepth(*expression);
    return expression;
}

}  // namespace desk::applescript
