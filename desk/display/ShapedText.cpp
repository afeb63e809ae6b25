#include "desk/display/ShapedText.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>

#include "desk/display/VisibleText.h"

namespace desk {

namespace {

constexpr double endlessWidth = 1e6;

QTextOption oneLineFromTheLeft() {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    return option;
}

// No marks that stack above or below the line, whose glyphs' boxes would have to be asked one by one.
bool keepsToItsLine(const QString& text) {
    constexpr char16_t firstCombiningMark = 0x300;
    return std::all_of(text.begin(), text.end(), [](QChar each) { return each.unicode() < firstCombiningMark; });
}

constexpr double overhang = 0.25;  // of the font's size, of slanting letters at both ends

}  // namespace

ShapedText::ShapedText(std::string_view text, const FontFace& face) : line(face.line) {
    const QString shown = visibleText(text);
    QTextLayout layout(shown, face.toolkitFont);
    layout.setTextOption(oneLineFromTheLeft());
    layout.beginLayout();
    QTextLine shaped = layout.createLine();
    QRectF natural;
    if (shaped.isValid()) {
        shaped.setLineWidth(endlessWidth);
        natural = shaped.naturalTextRect();
        origin = QPointF(natural.left(), shaped.ascent());
    }
    layout.endLayout();
    for (const QGlyphRun& run : layout.glyphRuns()) runs.push_back(run);
    const double margin = overhang * face.font.size;
    inked = QRectF(-margin, -line.ascent, natural.width() + 2 * margin, line.lineHeight());
    if (keepsToItsLine(shown)) return;
    for (const QGlyphRun& run : runs) inked |= run.boundingRect().translated(-origin);
}

void ShapedText::paint(QPainter& painter) const {
    for (const QGlyphRun& run : runs) painter.drawGlyphRun(-origin, run);
}

double ShapedText::width(std::string_view text, const FontFace& face) {
    return face.measure.horizontalAdvance(visibleText(text));
}

}  // namespace desk
