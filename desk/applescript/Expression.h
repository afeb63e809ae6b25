// The expressions of a compiled script, one type for each form. The parser builds them, the interpreter walks them;
// nothing changes them after compilation.
#pragma once

#include "desk/applescript/Value.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace desk::applescript {

struct Expression;
using ExpressionPtr = std::unique_ptr<Expression>;

enum class Operator {
    concatenate,
    coerce,
    add,
    subtract,
    multiply,
    divide,
    integerDivide,
    modulo,
    power,
    equal,
    notEqual,
    less,
    lessOrEqual,
    greater,
    greaterOrEqual,
    contains,
    doesNotContain,
    isIn,
    isNotIn,
    startsWith,
    endsWith,
    isRunning,
    isNotRunning,
    logicalAnd,
    logicalOr,
};

struct Literal {
    Value value;
};

// A place in the frame of the handler in which it stands.
struct Variable {
    std::size_t slot;
};

struct ListLiteral {
    std::vector<ExpressionPtr> items;
};

struct RecordLiteral {
    std::vector<std::pair<std::string, ExpressionPtr>> entries;
};

struct Negation {
    ExpressionPtr operand;
};

struct LogicalNot {
    ExpressionPtr operand;
};

struct BinaryOperation {
    Operator operation;
    ExpressionPtr left;
    ExpressionPtr right;
};

// A whole chain of `&`, so that it is put together in one text.
struct Concatenation {
    std::vector<ExpressionPtr> operands;
};

struct Coercion {
    ExpressionPtr operand;
    ClassTerm wanted;
};

// The target of the innermost `tell`, and the script itself.
struct ItReference {};
struct MeReference {};
struct AppleScriptReference {};
struct ResultReference {};

struct ApplicationReference {
    ExpressionPtr name;
    bool isByIdentifier;
};

struct PropertyAccess {
    // The words in lower case, by which a record finds its entry.
    std::string name;
    // Empty for a label that only records can have.
    std::optional<PropertyTerm> term;
    // Empty: the target of the innermost `tell`.
    ExpressionPtr container;
};

enum class Selector { every, byIndexOrName, byIdentifier, byName, last, middle, some, range };

struct ElementAccess {
    ClassTerm elements;
    Selector selector;
    ExpressionPtr first;
    // The other end of a range.
    ExpressionPtr second;
    ExpressionPtr filter;
    ExpressionPtr container;
};

struct CommandCall {
    CommandTerm command;
    ExpressionPtr direct;
    std::vector<std::pair<std::string, ExpressionPtr>> parameters;

    bool has(std::string_view label) const;
    const Expression* parameter(std::string_view label) const;
};

struct HandlerCall {
    std::string name;
    std::vector<ExpressionPtr> arguments;
    // Said with `my` or `of me`: within a `tell`, other calls go to the application.
    bool isToMe;
};

struct Expression {
    using Node = std::variant<Literal, Variable, ListLiteral, RecordLiteral, Negation, LogicalNot, BinaryOperation,
                              Concatenation, Coercion, ItReference, MeReference, AppleScriptReference, ResultReference,
                              ApplicationReference, PropertyAccess, ElementAccess, CommandCall, HandlerCall>;

    Node node;
    // Levels below and including this one, kept small enough to be walked by recursion.
    int depth = 1;
};

}  // namespace desk::applescript
