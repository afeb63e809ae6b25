#include "desk/display/ShapedText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include "desk/display/SystemFont.h"
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

}  // namespace

ShapedText::ShapedText(std::string_view text, platform::Font font) : line(systemFontMetrics(font)) {
    QTextLayout layout(visibleText(text), systemFont(font));
    layout.setTextOption(oneLineFromTheLeft());
    layout.beginLayout();
    QTextLine shaped = layout.createLine();
    if (shaped.isValid()) {
        shaped.setLineWidth(endlessWidth);
        origin = QPointF(shaped.naturalTextRect().left(), shaped.ascent());
    }
    layout.endLayout();
    for (const QGlyphRun& run : layout.glyphRuns()) {
        inked |= run.boundingRect().translated(-origin);
        runs.push_back(run);
    }
}

void ShapedText::paint(QPainter& painter) const {
    for (const QGlyphRun& run : runs) painter.drawGlyphRun(-origin, run);
}

double ShapedText::width(std::string_view text, platform::Font font) {
    return QFontMetricsF(systemFont(font)).horizontalAdvance(visibleText(text));
}

}  // namespace desk
