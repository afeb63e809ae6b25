#include "desk/applescript/Failure.h"
#include "desk/applescript/Parser.h"

#include <algorithm>
#include <array>
#include <utility>

namespace desk::applescript {

namespace {

struct PropertyWords {
    std::string_view words;
    PropertyTerm term;
    // Within a `tell` to Finder the words need no `of`.
    bool isFinders;
};

constexpr auto properties = std::to_array<PropertyWords>({
    {"posix path", PropertyTerm::posixPath, false},
    {"quoted form", PropertyTerm::quotedForm, false},
    {"id", PropertyTerm::identifier, true},
    {"name", PropertyTerm::name, true},
    {"target", PropertyTerm::target, true},
    {"selection", PropertyTerm::selection, true},
});

struct CommandWords {
    std::string_view words;
    CommandTerm term;
    enum class Operand { none, reference, expression } operand;
    bool isFinders = false;
};

constexpr auto commands = std::to_array<CommandWords>({
    {"activate", CommandTerm::activate, CommandWords::Operand::none, true},
    {"make new finder window to", CommandTerm::make, CommandWords::Operand::expression, true},
    {"make new finder window", CommandTerm::make, CommandWords::Operand::none, true},
    {"select", CommandTerm::select, CommandWords::Operand::expression, true},
    {"count of", CommandTerm::count, CommandWords::Operand::reference},
    {"count", CommandTerm::count, CommandWords::Operand::reference},
    {"delay", CommandTerm::delay, CommandWords::Operand::expression},
    {"do shell script", CommandTerm::doShellScript, CommandWords::Operand::expression},
    {"ascii character", CommandTerm::asciiCharacter, CommandWords::Operand::reference},
    {"posix file", CommandTerm::posixFile, CommandWords::Operand::reference},
});

}  // namespace

// From the loosest binding to the tightest: comparison, then `as` and `&` from left to right, then `of`.
ExpressionPtr Parser::parseExpression() {
    ExpressionPtr left = parseJoined();
    while (isAt("is") || isAt("=") || isAt("≠")) {
        const bool wantsEqual = !isAt("is not") && !isAt("≠");
        if (!accept("is not")) {
            next();
        }
        ExpressionPtr right = parseJoined();
        const std::initializer_list<const Expression*> children{left.get(), right.get()};
        left = make(Comparison{std::move(left), std::move(right), wantsEqual}, children);
    }
    return left;
}

ExpressionPtr Parser::parseJoined() {
    ExpressionPtr left = parseReference();
    while (true) {
        if (accept("as")) {
            const Expression* child = left.get();
            left = make(Coercion{std::move(left), parseCoercion()}, {child});
        } else if (accept("&")) {
            left = joined(std::move(left), parseReference());
        } else {
            return left;
        }
    }
}

ExpressionPtr Parser::joined(ExpressionPtr left, ExpressionPtr right) const {
    if (auto* chain = std::get_if<Concatenation>(&left->node)) {
        left->depth = std::max(left->depth, right->depth + 1);
        checkDepth(*left);
        chain->operands.push_back(std::move(right));
        return left;
    }
    const std::initializer_list<const Expression*> children{left.get(), right.get()};
    Concatenation chain;
    chain.operands.push_back(std::move(left));
    chain.operands.push_back(std::move(right));
    return make(std::move(chain), children);
}

ExpressionPtr Parser::parseReference() {
    const Nesting level(*this);
    ExpressionPtr head = parsePrimary();
    if (accept("of")) {
        attach(*head, parseReference());
    }
    return head;
}

void Parser::attach(Expression& head, ExpressionPtr container) const {
    head.depth = std::max(head.depth, container->depth + 1);
    checkDepth(head);
    auto* property = std::get_if<PropertyAccess>(&head.node);
    auto* element = std::get_if<ElementAccess>(&head.node);
    if (property != nullptr && property->container == nullptr) {
        property->container = std::move(container);
    } else if (element != nullptr && element->container == nullptr) {
        element->container = std::move(container);
    } else {
        failSyntax("end of line, etc.", "“of”");
    }
}

ExpressionPtr Parser::parsePrimary() {
    switch (peek().kind) {
    case TokenKind::integer:
        return make(Literal{Value::number(next().integer)});
    case TokenKind::real:
        return make(Literal{Value(Value::Storage(next().real))});
    case TokenKind::string:
        return make(Literal{Value(ScriptText::literal(next().text))});
    case TokenKind::word:
        return parseWord();
    default:
        break;
    }
    if (!accept("(")) {
        failExpecting("expression");
    }
    ExpressionPtr inner = parseExpression();
    expect(")");
    return inner;
}

ExpressionPtr Parser::parseWord() {
    if (isAt("application") && peek(1).kind == TokenKind::string) {
        next();
        ExpressionPtr name = parsePrimary();
        const Expression* child = name.get();
        return make(ApplicationReference{std::move(name)}, {child});
    }
    if (ExpressionPtr property = parseProperty()) {
        return property;
    }
    if (ExpressionPtr command = parseCommand()) {
        return command;
    }
    if (ExpressionPtr element = parseElement()) {
        return element;
    }
    if (isAt("every")) {
        next();
        failExpecting("class name");
    }
    return make(Variable{expectVariable()});
}

ExpressionPtr Parser::parseProperty() {
    for (const PropertyWords& property : properties) {
        const std::size_t count = wordsAhead(property.words);
        const bool isOwned = count > 0 && peek(count).kind == TokenKind::word && peek(count).folded == "of";
        if (count > 0 && (isOwned || (property.isFinders && isInFinder))) {
            position += count;
            return make(PropertyAccess{property.term, nullptr});
        }
    }
    return nullptr;
}

ExpressionPtr Parser::parseElement() {
    if (isInFinder && (accept("every finder window") || accept("finder windows"))) {
        return make(ElementAccess{ElementTerm::finderWindow, Selector::every, nullptr, nullptr});
    }
    if (isInFinder && accept("front finder window")) {
        return make(
            ElementAccess{ElementTerm::finderWindow, Selector::byIndex, make(Literal{Value::number(1)}), nullptr});
    }
    const bool isWindow = isInFinder && accept("finder window");
    const bool isIndexed = peek(1).kind == TokenKind::integer || peek(1).kind == TokenKind::word;
    if (!isWindow && (!isAt("item") || !isIndexed || !accept("item"))) {
        return nullptr;
    }
    const Selector selector = isWindow && accept("id") ? Selector::byIdentifier : Selector::byIndex;
    ExpressionPtr which = parsePrimary();
    const Expression* child = which.get();
    const ElementTerm elements = isWindow ? ElementTerm::finderWindow : ElementTerm::item;
    return make(ElementAccess{elements, selector, std::move(which), nullptr}, {child});
}

ExpressionPtr Parser::parseCommand() {
    const auto isHere = [&](const CommandWords& each) { return (isInFinder || !each.isFinders) && accept(each.words); };
    const auto words = std::find_if(commands.begin(), commands.end(), isHere);
    if (words == commands.end()) {
        return nullptr;
    }
    CommandCall call{words->term, nullptr};
    if (words->operand == CommandWords::Operand::none) {
        return make(std::move(call));
    }
    call.direct = words->operand == CommandWords::Operand::reference ? parseReference() : parseExpression();
    call.asAdministrator = words->term == CommandTerm::doShellScript && accept("with administrator privileges");
    const Expression* child = call.direct.get();
    return make(std::move(call), {child});
}

CoercionTerm Parser::parseCoercion() {
    if (accept("text")) {
        return CoercionTerm::text;
    }
    if (!accept("alias")) {
        failExpecting("class name");
    }
    return CoercionTerm::alias;
}

}  // namespace desk::applescript
