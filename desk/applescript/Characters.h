// The characters of a text, which are Unicode code points here; what isn't UTF-8 counts byte by byte.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace desk::applescript {

// Views into the text, one after the other.
std::vector<std::string_view> charactersOf(std::string_view text);
std::size_t characterCount(std::string_view text);

// Empty for what is no Unicode code point.
std::optional<std::string> characterWithCode(std::int64_t code);
std::int64_t codeOfCharacter(std::string_view character);

// The Mac OS Roman encoding, which `ASCII character` and `ASCII number` mean from 128 on; empty outside 0 to 255.
std::optional<std::string> romanCharacter(std::int64_t code);
std::optional<std::int64_t> romanCode(std::string_view character);

}  // namespace desk::applescript
