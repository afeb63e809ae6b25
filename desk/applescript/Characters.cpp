#include "desk/applescript/Characters.h"

#include <algorithm>

namespace desk::applescript {

namespace {

constexpr std::string_view upperRomanHalf = "ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø¿¡¬√ƒ≈∆«»…"
                                            "\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ˜¯"
                                            "˘˙˚¸˝˛ˇ";
constexpr std::int64_t asciiCount = 128;

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u;
}

std::size_t characterLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t wanted = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 1;
    if (wanted > text.size()) {
        return 1;
    }
    const bool isWhole =
        std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(wanted), isContinuation);
    return isWhole ? wanted : 1;
}

}  // namespace

std::vector<std::string_view> charactersOf(std::string_view text) {
    std::vector<std::string_view> characters;
    while (!text.empty()) {
        characters.push_back(text.substr(0, characterLength(text)));
        text.remove_prefix(characters.back().size());
    }
    return characters;
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count) {
        text.remove_prefix(characterLength(text));
    }
    return count;
}

std::optional<std::string> characterWithCode(std::int64_t code) {
    if (code < 0 || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) {
        return std::nullopt;
    }
    const auto byte = [&](int shift, std::int64_t lead, std::int64_t mask) {
        return static_cast<char>(lead | ((code >> shift) & mask));
    };
    if (code < 0x80) {
        return std::string{byte(0, 0, 0x7F)};
    }
    if (code < 0x800) {
        return std::string{byte(6, 0xC0, 0x1F), byte(0, 0x80, 0x3F)};
    }
    if (code < 0x10000) {
        return std::string{byte(12, 0xE0, 0x0F), byte(6, 0x80, 0x3F), byte(0, 0x80, 0x3F)};
    }
    return std::string{byte(18, 0xF0, 0x07), byte(12, 0x80, 0x3F), byte(6, 0x80, 0x3F), byte(0, 0x80, 0x3F)};
}

std::int64_t codeOfCharacter(std::string_view character) {
    const auto lead = static_cast<unsigned char>(character.front());
    constexpr unsigned char leadMasks[] = {0, 0xFF, 0x1F, 0x0F, 0x07};
    std::int64_t code = lead & leadMasks[character.size()];
    for (const char byte : character.substr(1)) {
        code = (code << 6) | (static_cast<unsigned char>(byte) & 0x3F);
    }
    return code;
}

std::optional<std::string> romanCharacter(std::int64_t code) {
    if (code < 0 || code > 255) {
        return std::nullopt;
    }
    return code < asciiCount ? std::string(1, static_cast<char>(code))
                             : std::string(charactersOf(upperRomanHalf)[static_cast<std::size_t>(code - asciiCount)]);
}

std::optional<std::int64_t> romanCode(std::string_view character) {
    if (codeOfCharacter(character) < asciiCount) {
        return codeOfCharacter(character);
    }
    const std::vector<std::string_view> upper = charactersOf(upperRomanHalf);
    const auto found = std::find(upper.begin(), upper.end(), character);
    return found == upper.end() ? std::nullopt : std::optional(asciiCount + (found - upper.begin()));
}

}  // namespace desk::applescript
