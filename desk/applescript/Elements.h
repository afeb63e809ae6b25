// The elements and properties that texts and lists have in the language itself, without any application.
#pragma once

#include "desk/applescript/Value.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace desk::applescript {

// Empty if values of that kind have no such elements.
std::optional<ListPtr> elementsOf(const Value& container, ClassTerm elements, std::string_view delimiters);

// From 1, or from -1 backwards; empty if there is none.
std::optional<std::size_t> elementIndex(std::int64_t number, std::size_t count);

// Both ends included, in either order; empty if one of them isn't there.
std::optional<Value> elementRange(const List& list, std::int64_t first, std::int64_t last);
std::optional<Value> textRange(std::string_view text, std::int64_t first, std::int64_t last);

// Empty if values of that kind have no such property.
std::optional<Value> languageProperty(PropertyTerm property, const Value& owner);

}  // namespace desk::applescript
