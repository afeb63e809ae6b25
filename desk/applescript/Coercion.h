// Values turned into values of another class, as far as that takes no look at the disk. An answer is empty where
// AppleScript has no such coercion; which error that is, the caller knows.
#pragma once

#include "desk/applescript/Value.h"

#include <optional>
#include <string_view>

namespace desk::applescript {

// The delimiters stand between the items of a list. References other than files, records and lists that hold one have
// no text.
std::optional<Text> textOf(const Value& value, std::string_view delimiters);
std::optional<Value> numberOf(const Value& value);
std::optional<std::int64_t> integerOf(const Value& value);
std::optional<bool> booleanOf(const Value& value);
Value listOf(const Value& value);

// Throws Failure with AppleScript's "Can’t make ... into type ...".
[[noreturn]] void failCoercion(const Value& value, ClassTerm wanted);

}  // namespace desk::applescript
