// The words of the language and of Finder's dictionary, as far as scripts to Finder use them.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace desk::applescript {

enum class ElementTerm { item, finderWindow };
enum class PropertyTerm { identifier, name, target, selection, posixPath, quotedForm };
enum class CommandTerm { activate, make, select, count, delay, doShellScript, asciiCharacter, posixFile };
enum class CoercionTerm { text, alias };

constexpr std::string_view nameOf(PropertyTerm term) {
    constexpr std::array<std::string_view, 6> names{"id", "name", "target", "selection", "POSIX path", "quoted form"};
    return names[static_cast<std::size_t>(term)];
}

}  // namespace desk::applescript
