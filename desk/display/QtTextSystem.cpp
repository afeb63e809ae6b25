#include "desk/display/QtTextSystem.h"

#include <algorithm>

#include "desk/display/LaidOutLine.h"
#include "desk/display/ShapedText.h"

namespace desk {

namespace {

constexpr std::string_view ellipsis = "\u2026";
constexpr std::size_t breakingsKept = 4;  // of one text
constexpr double mostBytesInAnEm = 16;    // of narrow letters with many accents

}  // namespace

QtTextSystem::QtTextSystem() : widths(4096), truncations(1024), brokenTexts(256) {}

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
    return truncations
        .insert({std::string(text), font}, {width, truncate(text, font, width, platform::TextTruncation::middle)})
        .result;
}

// Shaping makes widths of pieces not quite additive, so the search is confirmed by measuring what it answers.
std::string QtTextSystem::truncate(std::string_view text, platform::Font font, double width,
                                   platform::TextTruncation truncation) {
    const std::vector<std::size_t> cuts = boundaries.edgesOfCharacters(text);
    const auto keeping = [&](std::size_t count) {
        const std::size_t tail = truncation == platform::TextTruncation::middle ? count / 2 : 0;
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

std::vector<std::string> QtTextSystem::lines(std::string_view text, platform::Font font, double width,
                                             std::size_t limit, platform::TextTruncation truncation) {
    std::vector<BrokenText>* kept = brokenTexts.find(TextLookup{text, font});
    if (kept != nullptr)
        for (const BrokenText& each : *kept)
            if (each.isFor(width, limit, truncation)) return each.lines;
    BrokenText broken{width, limit, truncation, breakIntoLines(text, font, width, limit, truncation)};
    if (text.size() > longestKeptText) return broken.lines;
    if (kept == nullptr) kept = &brokenTexts.insert({std::string(text), font}, {});
    if (kept->size() == breakingsKept) kept->erase(kept->begin());
    kept->push_back(std::move(broken));
    return kept->back().lines;
}

std::vector<std::string> QtTextSystem::breakIntoLines(std::string_view text, platform::Font font, double width,
                                                      std::size_t limit, platform::TextTruncation truncation) {
    const FontFace& face = fonts.face(font);
    const double bytes = std::min(width / font.size * mostBytesInAnEm + mostBytesInAnEm, 1e6);
    const auto mostBytes = static_cast<std::size_t>(std::max(bytes, mostBytesInAnEm));
    const auto measure = [&](std::string_view part) { return ShapedText::width(part, face); };
    std::vector<std::string> result;
    const std::vector<TextLine> parts = breaker.lines(text, width, limit, mostBytes, measure);
    for (const TextLine& line : parts) result.emplace_back(text.substr(line.begin, line.end - line.begin));
    if (parts.back().next == text.size()) return result;
    std::string rest(text.substr(parts.back().begin));
    std::replace(rest.begin(), rest.end(), '\n', ' ');
    result.back() = truncate(rest, font, width, truncation);
    return result;
}

std::optional<platform::CGSize> QtTextSystem::symbolSize(std::string_view name, platform::Font font) {
    return symbols.size(name, font);
}

}  // namespace desk
