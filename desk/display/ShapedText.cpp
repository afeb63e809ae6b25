#include "desk/display/ShapedText.h"

#include <QPainter>
#include <algorithm>

#include "desk/display/LaidOutLine.h"
#include "desk/display/VisibleText.h"

namespace desk {

namespace {

// No marks that stack above or below the line, whose glyphs' boxes would have to be asked one by one.
bool keepsToItsLine(const QString& text) {
    constexpr char16_t firstCombiningMark = 0x300;
    return std::all_of(text.begin(), text.end(), [](QChar each) { return each.unicode() < firstCombiningMark; });
}

constexpr double overhang = 0.25;  // of the font's size, of slanting letters at both ends

}  // namespace

ShapedText::ShapedText(std::string_view text, const FontFace& face) : line(face.line) {
    const LaidOutLine laidOut(text, face);
    origin = QPointF(laidOut.left(), laidOut.ascent());
    for (const QGlyphRun& run : laidOut.glyphRuns()) runs.push_back(run);
    const double margin = overhang * face.font.size;
    inked = QRectF(-margin, -line.ascent, laidOut.width() + 2 * margin, line.lineHeight());
    if (keepsToItsLine(laidOut.shownText())) return;
    for (const QGlyphRun& run : runs) inked |= run.boundingRect().translated(-origin);
}

void ShapedText::paint(QPainter& painter) const {
    for (const QGlyphRun& run : runs) painter.drawGlyphRun(-origin, run);
}

double ShapedText::width(std::string_view text, const FontFace& face) {
    return face.measure.horizontalAdvance(visibleText(text));
}

}  // namespace desk
