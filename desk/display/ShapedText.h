// A line of text in a font, shaped once: glyphs with their places, ready to be painted again and again. Coordinates are points from the left end of
// the line's baseline, whichever way the text reads.
#pragma once

#include <QGlyphRun>
#include <QRectF>
#include <string_view>
#include <vector>

#include "desk/display/SystemFonts.h"
#include "platform/Text.h"

class QPainter;

namespace desk {

class ShapedText {
public:
    ShapedText(std::string_view text, const FontFace& face);

    // The painter's pen gives the colour.
    void paint(QPainter& painter) const;
    const platform::FontMetrics& metrics() const { return line; }
    // Around everything that is inked.
    const QRectF& bounds() const { return inked; }

    // Measures without keeping anything: what the painted line takes, trailing blanks included.
    static double width(std::string_view text, const FontFace& face);

private:
    platform::FontMetrics line;
    std::vector<QGlyphRun> runs;
    QPointF origin;  // of the line, as the runs count
    QRectF inked;
};

}  // namespace desk
