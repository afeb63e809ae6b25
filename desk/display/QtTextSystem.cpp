#include "desk/display/QtTextSystem.h"

#include <cmath>
#include <vector>

#include "desk/display/LaidOutLine.h"
#include "desk/display/ShapedText.h"

namespace desk {

namespace {

constexpr std::string_view ellipsis = "\u2026";

}  // namespace

QtTextSystem::QtTextSystem() : widths(4096), truncations(1024) {}

double QtTextSystem::width(std::string_view text, platform::Font font) {
    if (text.size() > longestKeptText) return laidOut(text, font).width();
    if (const double* known = widths.find(TextLookup{text, font})) return *known;
    return widths.insert({std::string(text), font}, ShapedText::width(text, fonts.face(font)));
}

platform::FontMetrics QtTextSystem::metrics(platform::Font font) {
    return fonts.face(font).line;
}

double QtTextSystem::caretPosition(std::string_view text, platform::Font font, std::size_t offset) {
    return laidOut(text, font).caretPosition(offset);
}

std::vector<platform::LineStretch> QtTextSystem::stretches(std::string_view text, platform::Font font,
                                                           std::size_t begin, std::size_t end) {
    return laidOut(text, font).stretches(begin, end);
}

const LaidOutLine& QtTextSystem::laidOut(std::string_view text, platform::Font font) {
    if (latest == nullptr || !latest->isOf(text, font)) latest = std::make_unique<LaidOutLine>(text, fonts.face(font));
    return *latest;
}

std::string QtTextSystem::truncatedInMiddle(std::string_view text, platform::Font font, double width) {
    if (this->width(text, font) <= width) return std::string(text);
    const TextLookup key{text, font};
    if (const Truncation* known = truncations.find(key); known != nullptr && known->width == width)
        return known->result;
    return truncations.insert({std::string(text), font}, {width, truncate(text, font, width)}).result;
}

// Shaping makes widths of pieces not quite additive, so the search is confirmed by measuring what it answers.
std::string QtTextSystem::truncate(std::string_view text, platform::Font font, double width) {
    const std::vector<std::size_t> cuts = boundaries.edgesOfCharacters(text);
    const auto keeping = [&](std::size_t count) {
        const std::size_t tail = count / 2;
        std::string result(text.substr(0, cuts[count - tail]));
        result += ellipsis;
        return result += text.substr(cuts[cuts.size() - 1 - tail]);
    };
    const FontFace& face = fonts.face(font);
    const auto fits = [&](std::size_t count) { return ShapedText::width(keeping(count), face) <= width; };

    std::size_t fitting = 0;
    std::size_t tooMany = cuts.size() < 2 ? 1 : cuts.size() - 1;
    while (fitting + 1 < tooMany) {
        const std::size_t middle = (fitting + tooMany) / 2;
        (fits(middle) ? fitting : tooMany) = middle;
    }
    return keeping(fitting);
}

std::optional<platform::CGSize> QtTextSystem::symbolSize(std::string_view name, platform::Font font) {
    return symbols.size(name, font);
}

}  // namespace desk
