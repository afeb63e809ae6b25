// One line of text as the toolkit lays it out: where each letter stands, whichever way it runs. Text systems ask it for carets and selections, and what is painted is made of it. It paints
// nothing and stays where it was made.
#pragma once

#include <QList>
#include <QString>
#include <QTextLayout>
#include <QTextLine>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "desk/display/SystemFonts.h"
#include "platform/Text.h"

namespace desk {

class LaidOutLine {
public:
    LaidOutLine(std::string_view text, const FontFace& face);
    LaidOutLine(const LaidOutLine&) = delete;
    LaidOutLine& operator=(const LaidOutLine&) = delete;

    bool isOf(std::string_view text, platform::Font font) const { return text == original && font == ownFont; }

    // Trailing blanks included.
    double width() const;
    // As TextSystem's operations of these names.
    double caretPosition(std::size_t offset) const;
    std::vector<platform::LineStretch> stretches(std::size_t begin, std::size_t end) const;

    const QString& shownText() const { return shown; }
    double ascent() const;
    // Of the line's left end, as the runs count.
    double left() const;
    QList<QGlyphRun> glyphRuns() const { return layout.glyphRuns(); }

private:
    qsizetype placeOf(std::size_t offset) const;
    double edge(qsizetype place) const;
    std::vector<platform::LineStretch> glyphStretches(qsizetype begin, qsizetype end) const;

    std::string original;
    platform::Font ownFont;
    QString shown;
    QTextLayout layout;
    QTextLine line;
};

}  // namespace desk
