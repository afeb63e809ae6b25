// Property lists, XML or binary, as values: Info dictionaries and what system tools answer. It reads and never writes.
#pragma once

#include <optional>
#include <string_view>

#include "platform/Dictionary.h"

namespace desk {

// Texts, numbers, booleans, arrays and dictionaries keep their types; what a value can't hold (data, dates, text that isn't UTF-8) is null. Nothing of what can't be read, or is
// larger, deeper or more entangled than any Info dictionary.
std::optional<platform::Value> readPropertyList(std::string_view data);

}  // namespace desk
