// The statements of a compiled script, one type for each form. The parser builds them, the interpreter walks them;
// nothing changes them after compilation.
#pragma once

#include "desk/applescript/Expression.h"

#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace desk::applescript {

struct Statement;
using Block = std::vector<Statement>;

struct ExpressionStatement {
    ExpressionPtr expression;
};

// The target is a variable or a property.
struct Assignment {
    ExpressionPtr target;
    ExpressionPtr value;
};

struct TellBlock {
    ExpressionPtr target;
    Block body;
};

struct IfChain {
    std::vector<std::pair<ExpressionPtr, Block>> branches;
    Block otherwise;
};

struct RepeatRange {
    std::size_t slot;
    ExpressionPtr from;
    ExpressionPtr to;
    Block body;
};

struct TryBlock {
    Block body;
    Block onError;
    std::optional<std::size_t> messageSlot;
    std::optional<std::size_t> numberSlot;
};

struct RaiseError {
    ExpressionPtr message;
    ExpressionPtr number;
};

struct ReturnStatement {
    ExpressionPtr value;
};

struct Statement {
    std::variant<ExpressionStatement, Assignment, TellBlock, IfChain, RepeatRange, TryBlock, RaiseError,
                 ReturnStatement>
        node;
};

}  // namespace desk::applescript
