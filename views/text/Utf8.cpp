#include "views/text/Utf8.h"

#include <algorithm>
#include <cstdint>

namespace views {

namespace {

// The well-formed sequences by first byte, with the range of the second: narrower than 80..BF where that would be an overlong form, a surrogate or too high.
struct Form {
    std::uint8_t firstLow, firstHigh;
    std::uint8_t length;
    std::uint8_t secondLow, secondHigh;
};
constexpr Form forms[] = {{0x00, 0x7F, 1, 0, 0},       {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
                          {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
                          {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F}};

std::uint8_t byteAt(std::string_view text, std::size_t offset) {
    return static_cast<std::uint8_t>(text[offset]);
}

bool isBetween(std::uint8_t byte, std::uint8_t low, std::uint8_t high) {
    return byte >= low && byte <= high;
}

struct Unit {
    std::size_t bytes;
    std::size_t utf16;
};

Unit unitAt(std::string_view text, std::size_t offset) {
    const std::size_t length = characterLength(text, offset);
    return {std::max<std::size_t>(length, 1), length == 4 ? 2U : 1U};
}

}  // namespace

std::size_t characterLength(std::string_view text, std::size_t offset) {
    const std::uint8_t first = byteAt(text, offset);
    const auto* form = std::find_if(std::begin(forms), std::end(forms),
                                    [&](const Form& each) { return isBetween(first, each.firstLow, each.firstHigh); });
    if (form == std::end(forms) || offset + form->length > text.size()) return 0;
    if (form->length > 1 && !isBetween(byteAt(text, offset + 1), form->secondLow, form->secondHigh)) return 0;
    for (std::size_t next = 2; next < form->length; ++next)
        if (!isBetween(byteAt(text, offset + next), 0x80, 0xBF)) return 0;
    return form->length;
}

bool isWellFormed(std::string_view text) {
    std::size_t offset = 0;
    while (offset < text.size()) {
        const std::size_t length = characterLength(text, offset);
        if (length == 0) return false;
        offset += length;
    }
    return true;
}

std::size_t utf16Length(std::string_view text) {
    std::size_t length = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        const Unit unit = unitAt(text, offset);
        offset += unit.bytes;
        length += unit.utf16;
    }
    return length;
}

std::size_t byteOffset(std::string_view text, std::size_t utf16Offset) {
    std::size_t offset = 0;
    for (std::size_t counted = 0; offset < text.size();) {
        const Unit unit = unitAt(text, offset);
        counted += unit.utf16;
        if (counted > utf16Offset) break;
        offset += unit.bytes;
    }
    return offset;
}

std::string repaired(std::string_view text) {
    std::string result;
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t length = characterLength(text, offset);
        result += length == 0 ? std::string_view("\uFFFD") : text.substr(offset, length);
        offset += std::max<std::size_t>(length, 1);
    }
    return result;
}

}  // namespace views
