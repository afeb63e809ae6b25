// Measuring text and symbols of the system font, which layout needs before anything is painted. The backend paints with the same fonts, so
// what is measured here is what is drawn. It may cache widths; it never changes an answer. Main thread only.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Drawing.h"
#include "platform/Geometry.h"

namespace platform {

// In points; the line is ascent plus descent high and has no leading.
struct FontMetrics {
    double ascent = 0;
    double descent = 0;
    double capHeight = 0;
    double lineHeight() const { return ascent + descent; }
};

// A part of a line, in points from its left end.
struct LineStretch {
    double begin = 0;
    double end = 0;
    friend bool operator==(const LineStretch&, const LineStretch&) = default;
};

// Where "…" stands in a text that is too long.
enum class TextTruncation : std::uint8_t { tail, middle };

class TextSystem {
public:
    virtual ~TextSystem() = default;

    // The advance width of the whole text on one line. Line feeds and other control characters take the room of what is drawn for them.
    virtual double width(std::string_view text, Font font) = 0;
    virtual FontMetrics metrics(Font font) = 0;

    // Where a caret in front of the byte at that offset stands, in points from the line's left end. In text that runs both ways this isn't the width of what goes before.
    virtual double caretPosition(std::string_view text, Font font, std::size_t offset) = 0;
    // What the bytes from `begin` to `end` cover, from left to right, apart from each other: one stretch unless the text runs both ways.
    virtual std::vector<LineStretch> stretches(std::string_view text, Font font, std::size_t begin,
                                               std::size_t end) = 0;

    // The text with its middle replaced by "…" so that it fits the width; the text itself when it fits already, "…" when nothing else does.
    // Cuts between grapheme clusters.
    virtual std::string truncatedInMiddle(std::string_view text, Font font, double width) = 0;

    // The text in lines that are no wider than `width`: broken where people expect it, and inside a word that is too long for a line of its own. Line feeds end a line; the blanks
    // at a break are on none. With a limit above 0 there are no more lines than that, and what the last of them has no room for is replaced by "…".
    virtual std::vector<std::string> lines(std::string_view text, Font font, double width, std::size_t limit,
                                           TextTruncation truncation) = 0;

    // The room a symbol takes in text of that font; empty for a name that the system's set doesn't have.
    virtual std::optional<CGSize> symbolSize(std::string_view name, Font font) = 0;
};

}  // namespace platform
