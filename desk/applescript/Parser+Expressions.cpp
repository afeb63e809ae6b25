#include "desk/applescript/Failure.h"
#include "desk/applescript/Parser.h"

#include <algorithm>
#include <array>
#include <utility>

namespace desk::applescript {

struct Parser::OperatorWords {
    std::string_view words;
    Operator operation;
    // Higher binds tighter; `not` stands at 3, between `and` and the comparisons.
    int level;
};

namespace {

constexpr int logicalNotLevel = 3;
constexpr int coercionLevel = 6;
constexpr int powerLevel = 10;

}  // namespace

// Most of it is the table.
// NOLINTNEXTLINE(readability-function-size)
const Parser::OperatorWords* Parser::operatorAhead() const {
    static constexpr auto operators = std::to_array<OperatorWords>({
        {"or", Operator::logicalOr, 1},
        {"and", Operator::logicalAnd, 2},
        {"=", Operator::equal, 4},
        {"is", Operator::equal, 4},
        {"is equal to", Operator::equal, 4},
        {"is equal", Operator::equal, 4},
        {"equals", Operator::equal, 4},
        {"equal to", Operator::equal, 4},
        {"≠", Operator::notEqual, 4},
        {"is not", Operator::notEqual, 4},
        {"isn't", Operator::notEqual, 4},
        {"is not equal to", Operator::notEqual, 4},
        {"isn't equal to", Operator::notEqual, 4},
        {"does not equal", Operator::notEqual, 4},
        {"doesn't equal", Operator::notEqual, 4},
        {"<", Operator::less, 5},
        {"is less than", Operator::less, 5},
        {"less than", Operator::less, 5},
        {"comes before", Operator::less, 5},
        {"is not greater than or equal to", Operator::less, 5},
        {"isn't greater than or equal to", Operator::less, 5},
        {"≤", Operator::lessOrEqual, 5},
        {"is less than or equal to", Operator::lessOrEqual, 5},
        {"less than or equal to", Operator::lessOrEqual, 5},
        {"is not greater than", Operator::lessOrEqual, 5},
        {"isn't greater than", Operator::lessOrEqual, 5},
        {"does not come after", Operator::lessOrEqual, 5},
        {"doesn't come after", Operator::lessOrEqual, 5},
        {">", Operator::greater, 5},
        {"is greater than", Operator::greater, 5},
        {"greater than", Operator::greater, 5},
        {"comes after", Operator::greater, 5},
        {"is not less than or equal to", Operator::greater, 5},
        {"isn't less than or equal to", Operator::greater, 5},
        {"≥", Operator::greaterOrEqual, 5},
        {"is greater than or equal to", Operator::greaterOrEqual, 5},
        {"greater than or equal to", Operator::greaterOrEqual, 5},
        {"is not less than", Operator::greaterOrEqual, 5},
        {"isn't less than", Operator::greaterOrEqual, 5},
        {"does not come before", Operator::greaterOrEqual, 5},
        {"doesn't come before", Operator::greaterOrEqual, 5},
        {"contains", Operator::contains, 5},
        {"contain", Operator::contains, 5},
        {"does not contain", Operator::doesNotContain, 5},
        {"doesn't contain", Operator::doesNotContain, 5},
        {"is in", Operator::isIn, 5},
        {"is contained by", Operator::isIn, 5},
        {"is not in", Operator::isNotIn, 5},
        {"isn't in", Operator::isNotIn, 5},
        {"is not contained by", Operator::isNotIn, 5},
        {"isn't contained by", Operator::isNotIn, 5},
        {"starts with", Operator::startsWith, 5},
        {"start with", Operator::startsWith, 5},
        {"begins with", Operator::startsWith, 5},
        {"begin with", Operator::startsWith, 5},
        {"ends with", Operator::endsWith, 5},
        {"end with", Operator::endsWith, 5},
        {"is running", Operator::isRunning, 5},
        {"is not running", Operator::isNotRunning, 5},
        {"isn't running", Operator::isNotRunning, 5},
        {"as", Operator::coerce, coercionLevel},
        {"&", Operator::concatenate, 7},
        {"+", Operator::add, 8},
        {"-", Operator::subtract, 8},
        {"*", Operator::multiply, 9},
        {"/", Operator::divide, 9},
        {"div", Operator::integerDivide, 9},
        {"mod", Operator::modulo, 9},
        {"^", Operator::power, powerLevel},
        {"is greater", Operator::greater, 5},
        {"is less", Operator::less, 5},
    });
    if (peek().kind != TokenKind::word && peek().kind != TokenKind::symbol) {
        return nullptr;
    }
    const OperatorWords* best = nullptr;
    std::size_t longest = 0;
    for (const OperatorWords& entry : operators) {
        const std::size_t count = wordsAhead(entry.words);
        if (count > longest) {
            longest = count;
            best = &entry;
        }
    }
    return best;
}

ExpressionPtr Parser::parseOperation(int lowestLevel) {
    const Nesting level(*this);
    ExpressionPtr left;
    if (accept("not")) {
        ExpressionPtr operand = parseOperation(logicalNotLevel + 1);
        const Expression* child = operand.get();
        left = make(LogicalNot{std::move(operand)}, {child});
    } else {
        left = parseOperand();
    }
    while (const OperatorWords* found = operatorAhead()) {
        if (found->level < lowestLevel) {
            break;
        }
        accept(found->words);
        const bool hasNoRight = found->operation == Operator::isRunning || found->operation == Operator::isNotRunning;
        if (found->operation == Operator::coerce) {
            const Expression* child = left.get();
            left = make(Coercion{std::move(left), parseClass()}, {child});
        } else {
            const int rightLevel = found->level == powerLevel ? powerLevel : found->level + 1;
            left = combined(found->operation, std::move(left), hasNoRight ? nullptr : parseOperation(rightLevel));
        }
    }
    return left;
}

ExpressionPtr Parser::combined(Operator operation, ExpressionPtr left, ExpressionPtr right) {
    const Expression* leftChild = left.get();
    const Expression* rightChild = right.get();
    if (operation != Operator::concatenate) {
        return make(BinaryOperation{operation, std::move(left), std::move(right)}, {leftChild, rightChild});
    }
    if (auto* chain = std::get_if<Concatenation>(&left->node)) {
        left->depth = std::max(left->depth, right->depth + 1);
        checkDepth(*left);
        chain->operands.push_back(std::move(right));
        return left;
    }
    Concatenation chain;
    chain.operands.push_back(std::move(left));
    chain.operands.push_back(std::move(right));
    return make(std::move(chain), {leftChild, rightChild});
}

ExpressionPtr Parser::parseOperand() {
    const Nesting level(*this);
    if (acceptSymbol("+")) {
        return parseOperand();
    }
    if (!acceptSymbol("-")) {
        return parseReference();
    }
    ExpressionPtr operand = parseOperand();
    const Expression* child = operand.get();
    return make(Negation{std::move(operand)}, {child});
}

ExpressionPtr Parser::parseReference() {
    const Nesting level(*this);
    ExpressionPtr head = parsePrimary();
    while (peek().kind == TokenKind::possessive) {
        next();
        ExpressionPtr owner = std::move(head);
        head = parsePrimary();
        attach(*head, std::move(owner));
    }
    if (isAtWord("of") || isAtWord("in")) {
        next();
        attach(*head, parseReference());
    }
    if (isAtWord("whose") || isAtWord("where")) {
        head = parseFilter(std::move(head));
    }
    if (accept("exists")) {
        const Expression* child = head.get();
        CommandCall call{CommandTerm::exists, std::move(head), {}};
        head = make(std::move(call), {child});
    }
    return head;
}

ExpressionPtr Parser::parseFilter(ExpressionPtr element) {
    auto* access = std::get_if<ElementAccess>(&element->node);
    const bool canFilter = access != nullptr && access->filter == nullptr && access->selector != Selector::range &&
                           access->selector != Selector::byName && access->selector != Selector::byIdentifier;
    if (canFilter) {
        next();
        const bool wasInFilter = std::exchange(isInFilter, true);
        access->filter = parseExpression();
        isInFilter = wasInFilter;
        element->depth = std::max(element->depth, access->filter->depth + 1);
        checkDepth(*element);
    }
    return element;
}

void Parser::attach(Expression& head, ExpressionPtr container) {
    const int depth = std::max(head.depth, container->depth + 1);
    if (const auto* variable = std::get_if<Variable>(&head.node)) {
        const std::string name = handler->names[variable->slot];
        const auto terms = propertyWords();
        const auto known =
            std::find_if(terms.begin(), terms.end(), [&](const auto& entry) { return entry.words == name; });
        head.node = PropertyAccess{name, known == terms.end() ? std::nullopt : std::optional(known->term), nullptr};
    }
    auto* property = std::get_if<PropertyAccess>(&head.node);
    auto* element = std::get_if<ElementAccess>(&head.node);
    auto* call = std::get_if<HandlerCall>(&head.node);
    if (property != nullptr && property->container == nullptr) {
        property->container = std::move(container);
    } else if (element != nullptr && element->container == nullptr) {
        element->container = std::move(container);
    } else if (call != nullptr && std::holds_alternative<MeReference>(container->node)) {
        call->isToMe = true;
    } else {
        failSyntax("end of line, etc.", "“of”");
    }
    head.depth = depth;
    checkDepth(head);
}

ClassTerm Parser::parseClass() {
    const ClassWords* best = nullptr;
    std::size_t longest = 0;
    for (const ClassWords& entry : classWords()) {
        const std::size_t count = wordsAhead(entry.singular);
        if (count > longest && (!entry.isFinders || isInFinder)) {
            longest = count;
            best = &entry;
        }
    }
    if (best == nullptr) {
        failExpecting("class name");
    }
    position += longest;
    return best->term;
}

}  // namespace desk::applescript
