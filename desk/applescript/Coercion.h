// Values turned into values of another class, as far as that takes no look at the disk.
#pragma once

#include "desk/applescript/Value.h"

#include <optional>
#include <string_view>

namespace desk::applescript {

// Empty for lists, references and what is no value.
std::optional<ScriptText> textOf(const Value& value);

// These throw Failure with AppleScript's "Can’t make ... into type ...".
ScriptText requiredText(const Value& value);
std::int64_t requiredInteger(const Value& value);
double requiredNumber(const Value& value);
bool requiredBoolean(const Value& value);
[[noreturn]] void failCoercion(const Value& value, std::string_view wanted);

}  // namespace desk::applescript
