// The expressions of a compiled script, one type for each form. The parser builds them, the interpreter walks them;
// nothing changes them after compilation.
#pragma once

#include "desk/applescript/Terminology.h"
#include "desk/applescript/Value.h"

#include <cstddef>
#include <memory>
#include <variant>
#include <vector>

namespace desk::applescript {

struct Expression;
using ExpressionPtr = std::unique_ptr<Expression>;

struct Literal {
    Value value;
};

// The place of a variable in Program::names.
struct Variable {
    std::size_t slot;
};

struct Comparison {
    ExpressionPtr left;
    ExpressionPtr right;
    bool wantsEqual;
};

// A whole chain of `&`, so that it is put together in one text.
struct Concatenation {
    std::vector<ExpressionPtr> operands;
};

struct Coercion {
    ExpressionPtr operand;
    CoercionTerm wanted;
};

struct ApplicationReference {
    ExpressionPtr name;
};

// Without a container they belong to the target of the innermost `tell`.
struct PropertyAccess {
    PropertyTerm term;
    ExpressionPtr container;
};

enum class Selector { every, byIndex, byIdentifier };

struct ElementAccess {
    ElementTerm elements;
    Selector selector;
    ExpressionPtr which;
    ExpressionPtr container;
};

struct CommandCall {
    CommandTerm command;
    ExpressionPtr direct;
    bool asAdministrator = false;
};

struct Expression {
    using Node = std::variant<Literal, Variable, Comparison, Concatenation, Coercion, ApplicationReference,
                              PropertyAccess, ElementAccess, CommandCall>;

    Node node;
    // Levels below and including this one, kept small enough to be walked by recursion.
    int depth = 1;
};

}  // namespace desk::applescript
