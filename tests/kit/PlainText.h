// Characters, words and the order of names by rules that can be worked out by hand: a character is a code point with the combining accents and joined code points after it, a
// word a run of ASCII letters, digits and of everything beyond ASCII, and names go by their bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Collation.h"
#include "platform/TextBoundaries.h"

namespace kit {

class PlainBoundaries final : public platform::TextBoundaries {
public:
    std::size_t nextCharacter(std::string_view text, std::size_t offset) override {
        if (offset >= text.size()) return text.size();
        do ++offset;
        while (offset < text.size() && isInside(text, offset));
        return offset;
    }
    std::size_t previousCharacter(std::string_view text, std::size_t offset) override {
        if (offset == 0) return 0;
        do --offset;
        while (offset > 0 && isInside(text, offset));
        return offset;
    }
    std::size_t nextWord(std::string_view text, std::size_t offset) override {
        while (offset < text.size() && !isOfWord(text[offset])) ++offset;
        while (offset < text.size() && isOfWord(text[offset])) ++offset;
        return offset;
    }
    std::size_t previousWord(std::string_view text, std::size_t offset) override {
        while (offset > 0 && !isOfWord(text[offset - 1])) --offset;
        while (offset > 0 && isOfWord(text[offset - 1])) --offset;
        return offset;
    }

private:
    static bool isInside(std::string_view text, std::size_t offset) {
        const auto byte = static_cast<unsigned char>(text[offset]);
        const bool continues = (byte & 0xC0U) == 0x80U;
        const bool combines = byte == 0xCCU || text.substr(offset).starts_with("\u200D");
        return continues || combines || text.substr(0, offset).ends_with("\u200D");
    }
    static bool isOfWord(char character) {
        const bool isLetter = (character | 0x20) >= 'a' && (character | 0x20) <= 'z';
        return isLetter || (character >= '0' && character <= '9') || (character & 0x80) != 0;
    }
};

class PlainCollation final : public platform::Collation {
public:
    int localizedStandardCompare(std::string_view a, std::string_view b) override { return a.compare(b); }
    void appendLocalizedStandardKey(std::string_view name, std::string& keys) override { keys += name; }
};

}  // namespace kit
