#include "desk/display/LaidOutLine.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextOption>
#include <algorithm>
#include <utility>

#include "desk/display/VisibleText.h"

namespace desk {

namespace {

using platform::LineStretch;

constexpr double endlessWidth = 1e6;

QTextOption oneLineFromTheLeft() {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    return option;
}

bool runsBothWays(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    return std::any_of(characters.begin(), characters.end(), [](uint each) {
        const QChar::Direction direction = QChar::direction(each);
        return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirRLE ||
               direction == QChar::DirRLO || direction == QChar::DirRLI;
    });
}

std::vector<LineStretch> joined(std::vector<LineStretch> pieces) {
    constexpr double gap = 0.5;  // glyphs stand on fractions of a point
    std::sort(pieces.begin(), pieces.end(), [](const auto& a, const auto& b) { return a.begin < b.begin; });
    std::vector<LineStretch> result;
    for (const LineStretch& piece : pieces) {
        if (!result.empty() && piece.begin <= result.back().end + gap)
            result.back().end = std::max(result.back().end, piece.end);
        else
            result.push_back(piece);
    }
    return result;
}

}  // namespace

LaidOutLine::LaidOutLine(std::string_view text, const FontFace& face)
    : original(text), ownFont(face.font), shown(visibleText(text)), layout(shown, face.toolkitFont) {
    layout.setTextOption(oneLineFromTheLeft());
    layout.beginLayout();
    line = layout.createLine();
    if (line.isValid()) line.setLineWidth(endlessWidth);
    layout.endLayout();
}

double LaidOutLine::width() const {
    return line.isValid() ? line.naturalTextRect().width() : 0;
}

double LaidOutLine::ascent() const {
    return line.isValid() ? line.ascent() : 0;
}

double LaidOutLine::left() const {
    return line.isValid() ? line.naturalTextRect().left() : 0;
}

// The place in the shown text of a byte of the original.
qsizetype LaidOutLine::placeOf(std::size_t offset) const {
    return visibleText(std::string_view(original).substr(0, offset)).size();
}

// Of the side on which the character at that place begins.
double LaidOutLine::edge(qsizetype place) const {
    return line.cursorToX(static_cast<int>(place)) - left();
}

double LaidOutLine::caretPosition(std::size_t offset) const {
    return line.isValid() ? edge(placeOf(offset)) : 0;
}

std::vector<LineStretch> LaidOutLine::stretches(std::size_t begin, std::size_t end) const {
    if (!line.isValid() || begin >= end) return {};
    const qsizetype first = placeOf(begin);
    const qsizetype last = placeOf(end);
    if (first == 0 && last == shown.size()) return {{0, width()}};
    if (!runsBothWays(shown)) return {{edge(first), edge(last)}};
    return joined(glyphStretches(first, last));
}

std::vector<LineStretch> LaidOutLine::glyphStretches(qsizetype begin, qsizetype end) const {
    std::vector<LineStretch> pieces;
    for (const QGlyphRun& run : line.glyphRuns(static_cast<int>(begin), static_cast<int>(end - begin))) {
        const QList<QPointF> starts = run.positions();
        const QList<QPointF> advances = run.rawFont().advancesForGlyphIndexes(run.glyphIndexes());
        for (qsizetype glyph = 0; glyph < starts.size() && glyph < advances.size(); ++glyph)
            pieces.push_back({starts[glyph].x() - left(), starts[glyph].x() + advances[glyph].x() - left()});
    }
    return pieces;
}

}  // namespace desk
