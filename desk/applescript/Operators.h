// Arithmetic and comparison of values. Case counts in comparisons of text only where the script considers it; accents
// always count.
#pragma once

#include "desk/applescript/Expression.h"

namespace desk::applescript {

// All throw Failure for operands that don't fit.
Value arithmetic(Operator operation, const Value& left, const Value& right);
Value negated(const Value& operand);
bool areEqual(const Value& left, const Value& right, bool considersCase);
bool compare(Operator operation, const Value& left, const Value& right, bool considersCase);

}  // namespace desk::applescript
