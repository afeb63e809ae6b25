// The desk's system font: which faces stand in for the Mac's, and how high their line is. Everything measured or painted gets its font here. Faces are
// kept, since finding one costs more than measuring a text with it.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <deque>

#include "platform/Drawing.h"
#include "platform/Text.h"

namespace desk {

inline constexpr const char* systemFontFamily = "Inter";

// With fallbacks for other scripts and emoji; in points, which are pixels at scale 1.
struct FontFace {
    platform::Font font;
    QFont toolkitFont;
    QFontMetricsF measure;
    platform::FontMetrics line;
};

class SystemFonts {
public:
    const FontFace& face(platform::Font font);

private:
    std::deque<FontFace> faces;  // latest last; few, since the system uses few sizes
};

}  // namespace desk
