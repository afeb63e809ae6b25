#include "desk/display/ShapedText.h"

#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <utility>

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

// One line of text as it is laid out.
struct OneLine {
    OneLine(const QString& text, const QFont& font) : layout(text, font) {
        layout.setTextOption(oneLineFromTheLeft());
        layout.beginLayout();
        line = layout.createLine();
        if (line.isValid()) line.setLineWidth(endlessWidth);
        layout.endLayout();
    }

    // Of the side on which the character at that place begins, from the line's left end.
    double edge(qsizetype place) const {
        return line.cursorToX(static_cast<int>(place)) - line.naturalTextRect().left();
    }

    QTextLayout layout;
    QTextLine line;
};

// The place in the shown text of a byte of the original.
qsizetype placeOf(std::string_view text, std::size_t offset) {
    return visibleText(text.substr(0, offset)).size();
}

bool runsBothWays(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar each) {
        const QChar::Direction direction = each.direction();
        return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirRLE ||
               direction == QChar::DirRLO || direction == QChar::DirRLI || each.isHighSurrogate();
    });
}

std::vector<platform::LineStretch> joined(std::vector<platform::LineStretch> pieces) {
    constexpr double gap = 0.5;  // glyphs stand on fractions of a point
    std::sort(pieces.begin(), pieces.end(), [](const auto& a, const auto& b) { return a.begin < b.begin; });
    std::vector<platform::LineStretch> result;
    for (const platform::LineStretch& piece : pieces) {
        if (!result.empty() && piece.begin <= result.back().end + gap)
            result.back().end = std::max(result.back().end, piece.end);
        else
            result.push_back(piece);
    }
    return result;
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
    const OneLine laidOut(shown, face.toolkitFont);
    QRectF natural;
    if (laidOut.line.isValid()) {
        natural = laidOut.line.naturalTextRect();
        origin = QPointF(natural.left(), laidOut.line.ascent());
    }
    for (const QGlyphRun& run : laidOut.layout.glyphRuns()) runs.push_back(run);
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

double ShapedText::caretPosition(std::string_view text, const FontFace& face, std::size_t offset) {
    const OneLine laidOut(visibleText(text), face.toolkitFont);
    return laidOut.line.isValid() ? laidOut.edge(placeOf(text, offset)) : 0;
}

std::vector<platform::LineStretch> ShapedText::stretches(std::string_view text, const FontFace& face, std::size_t begin,
                                                         std::size_t end) {
    const QString shown = visibleText(text);
    const OneLine laidOut(shown, face.toolkitFont);
    if (!laidOut.line.isValid() || begin >= end) return {};
    const qsizetype last = placeOf(text, end);
    if (begin == 0 && last == shown.size()) return {{0, laidOut.line.naturalTextRect().width()}};
    if (!runsBothWays(shown)) return {{laidOut.edge(placeOf(text, begin)), laidOut.edge(last)}};

    const double left = laidOut.line.naturalTextRect().left();
    const auto first = static_cast<int>(placeOf(text, begin));
    std::vector<platform::LineStretch> pieces;
    for (const QGlyphRun& run : laidOut.line.glyphRuns(first, static_cast<int>(last) - first)) {
        const QList<QPointF> starts = run.positions();
        const QList<QPointF> advances = run.rawFont().advancesForGlyphIndexes(run.glyphIndexes());
        for (qsizetype glyph = 0; glyph < starts.size() && glyph < advances.size(); ++glyph)
            pieces.push_back({starts[glyph].x() - left, starts[glyph].x() + advances[glyph].x() - left});
    }
    return joined(std::move(pieces));
}

}  // namespace desk
