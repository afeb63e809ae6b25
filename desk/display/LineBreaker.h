// Breaks a text into lines of a width: where people expect it, and inside a word that is too long for a line of its own. It measures by asking, and shortens nothing.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "desk/text/IcuTextBoundaries.h"

namespace desk {

// A part of a text, in bytes; the blanks between `end` and the next line are shown on none.
struct TextLine {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t next = 0;
};

class LineBreaker {
public:
    using Measure = std::function<double(std::string_view text)>;

    explicit LineBreaker(IcuTextBoundaries& theBoundaries) : boundaries(theBoundaries) {}

    // At least one line, and no more than `limit` if that is above 0. More than `mostBytes` are never tried on one line.
    std::vector<TextLine> lines(std::string_view text, double width, std::size_t limit, std::size_t mostBytes,
                                const Measure& measure);

private:
    class Filling;

    IcuTextBoundaries& boundaries;
};

}  // namespace desk
