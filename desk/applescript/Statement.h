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

// `set` and `copy`. The target is a variable, a property, an element, or a list of such.
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

struct RepeatForever {
    Block body;
};

struct RepeatTimes {
    ExpressionPtr times;
    Block body;
};

struct RepeatCondition {
    ExpressionPtr condition;
    bool stopsWhen;
    Block body;
};

struct RepeatRange {
    std::size_t slot;
    ExpressionPtr from;
    ExpressionPtr to;
    ExpressionPtr by;
    Block body;
};

struct RepeatList {
    std::size_t slot;
    ExpressionPtr list;
    Block body;
};

struct ExitRepeat {};

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

struct ConsideringBlock {
    std::optional<bool> considersCase;
    Block body;
};

struct Statement {
    std::variant<ExpressionStatement, Assignment, TellBlock, IfChain, RepeatForever, RepeatTimes, RepeatCondition,
                 RepeatRange, RepeatList, ExitRepeat, TryBlock, RaiseError, ReturnStatement, ConsideringBlock>
        node;
};

}  // namespace desk::applescript
