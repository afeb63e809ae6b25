// A text system whose answers can be worked out by hand: every character is 0.6 of the font size wide and a line 1.2
// high; symbols are squares of the font size. Titles can be given widths of their own.
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>

#include "platform/Text.h"

namespace kit {

class FixedText final : public platform::TextSystem {
public:
    static constexpr double widthOfCharacter = 0.6;

    std::map<std::string, double, std::less<>> widths;  // whatever the font
    std::int64_t measured = 0;

    double width(std::string_view text, platform::Font font) override {
        measured += 1;
        if (const auto given = widths.find(text); given != widths.end()) return given->second;
        return static_cast<double>(characters(text)) * widthOfCharacter * font.size;
    }
    double caretPosition(std::string_view text, platform::Font font, std::size_t offset) override {
        return width(text.substr(0, offset), font);
    }
    std::vector<platform::LineStretch> stretches(std::string_view text, platform::Font font, std::size_t begin,
                                                 std::size_t end) override {
        if (begin == end) return {};
        return {{caretPosition(text, font, begin), caretPosition(text, font, end)}};
    }
    platform::FontMetrics metrics(platform::Font font) override {
        return {font.size, 0.2 * font.size, 0.7 * font.size};
    }
    std::string truncatedInMiddle(std::string_view text, platform::Font font, double room) override {
        if (width(text, font) <= room) return std::string(text);
        const double each = widthOfCharacter * font.size;
        const auto kept = static_cast<std::size_t>(std::max(0.0, room / each - 1));
        const std::size_t tail = kept / 2;
        const std::size_t tailBegin = prefix(text, characters(text) - tail).size();
        return prefix(text, kept - tail) + "…" + std::string(text.substr(tailBegin));
    }
    std::vector<std::string> lines(std::string_view text, platform::Font, double, std::size_t,
                                   platform::TextTruncation) override {
        return {std::string(text)};
    }
    std::optional<platform::CGSize> symbolSize(std::string_view name, platform::Font font) override {
        if (name.empty()) return std::nullopt;
        return platform::CGSize{font.size, font.size};
    }

private:
    static bool beginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }
    static std::size_t characters(std::string_view text) {
        return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), beginsCharacter));
    }
    static std::string prefix(std::string_view text, std::size_t count) {
        std::size_t end = 0;
        while (end < text.size() && (!beginsCharacter(text[end]) || count-- > 0)) end += 1;
        return std::string(text.substr(0, end));
    }
};

}  // namespace kit
