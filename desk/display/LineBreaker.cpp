#include "desk/display/LineBreaker.h"

#include <algorithm>

namespace desk {

namespace {

// Blanks and line ends are left out at the end of a line. U+2028 and U+2029 end lines too.
std::size_t withoutBlanks(std::string_view text, std::size_t begin, std::size_t end) {
    const std::string_view line = text.substr(begin, end - begin);
    const std::size_t last = line.find_last_not_of(" \t\r\n\v\f");
    const std::size_t kept = last == std::string_view::npos ? 0 : last + 1;
    const std::string_view shown = line.substr(0, kept);
    const bool isSeparated = shown.ends_with("\u2028") || shown.ends_with("\u2029");
    return begin + (isSeparated ? kept - 3 : kept);
}

}  // namespace

// One text on its way into lines: a line grows from break to break until the next piece has no room.
class LineBreaker::Filling {
public:
    Filling(std::string_view theText, std::size_t theLimit, double theWidth, std::size_t theMostBytes,
            const Measure& theMeasure, IcuTextBoundaries& theBoundaries)
        : text(theText),
          limit(theLimit),
          width(theWidth),
          mostBytes(theMostBytes),
          measure(theMeasure),
          boundaries(theBoundaries) {}

    void takeUpTo(const IcuTextBoundaries::LineEdge& cut) {
        while (!isFull() && !fits(line.begin, withoutBlanks(text, line.begin, cut.offset))) {
            if (line.next == line.begin) growInsideWord(cut.offset);
            end();
        }
        line.end = withoutBlanks(text, line.begin, cut.offset);
        line.next = cut.offset;
        if (cut.endsLine) end();
    }

    void end() {
        if (isFull()) return;
        lines.push_back(line);
        line = {line.next, line.next, line.next};
    }

    // A line feed at the end of the text begins one more line.
    void finish(bool isAfterLineFeed) {
        if (line.begin < text.size() || lines.empty() || isAfterLineFeed) end();
    }

    std::vector<TextLine> lines;

private:
    bool isFull() const { return limit > 0 && lines.size() == limit; }
    bool fits(std::size_t begin, std::size_t end) const {
        return end - begin <= mostBytes && measure(text.substr(begin, end - begin)) <= width;
    }

    // One character at least.
    void growInsideWord(std::size_t wordEnd) {
        const std::string_view word = text.substr(line.begin, std::min(wordEnd - line.begin, mostBytes));
        const std::vector<std::size_t> edges = boundaries.edgesOfCharacters(word);
        const auto firstTooFar = std::partition_point(
            edges.begin() + 2, edges.end(), [&](std::size_t edge) { return fits(line.begin, line.begin + edge); });
        line.end = line.next = line.begin + *(firstTooFar - 1);
        if (withoutBlanks(text, line.end, wordEnd) == line.end) line.next = wordEnd;
    }

    const std::string_view text;
    const std::size_t limit;
    const double width;
    const std::size_t mostBytes;
    const Measure& measure;
    IcuTextBoundaries& boundaries;
    TextLine line;
};

std::vector<TextLine> LineBreaker::lines(std::string_view text, double width, std::size_t limit, std::size_t mostBytes,
                                         const Measure& measure) {
    Filling filling(text, limit, width, mostBytes, measure, boundaries);
    const auto cuts = boundaries.edgesOfLines(text);
    for (const auto& cut : cuts) filling.takeUpTo(cut);
    filling.finish(!cuts.empty() && cuts.back().endsLine);
    return std::move(filling.lines);
}

}  // namespace desk
