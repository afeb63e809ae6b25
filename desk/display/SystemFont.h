// The desk's system font: which faces stand in for the Mac's, and how high their line is. Everything measured or painted gets its font here.
#pragma once

#include <QFont>

#include "platform/Drawing.h"
#include "platform/Text.h"

namespace desk {

inline constexpr const char* systemFontFamily = "Inter";

// With fallbacks for other scripts and emoji, sized in points, which are pixels at scale 1.
QFont systemFont(platform::Font font);
platform::FontMetrics systemFontMetrics(platform::Font font);

}  // namespace desk
