// UTF-8 as the text field keeps it, against the UTF-16 units in which its selection is told. Bytes that belong to no character count as one unit each,
// so that every text has a length.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace views {

// Bytes of the well-formed character at the offset; 0 when there is none.
std::size_t characterLength(std::string_view text, std::size_t offset);

// Every byte belongs to such a character.
bool isWellFormed(std::string_view text);

std::size_t utf16Length(std::string_view text);
// Where the character begins that holds this unit; the text's size past its end.
std::size_t byteOffset(std::string_view text, std::size_t utf16Offset);

// Every byte that belongs to no character becomes U+FFFD.
std::string repaired(std::string_view text);

}  // namespace views
