// What the colours' roles look like on the desk: one column for each scheme, and the user's accent colour.
#pragma once

#include <QColor>
#include <cstdint>

#include "platform/Drawing.h"

namespace desk {

struct Palette {
    platform::ColorScheme scheme = platform::ColorScheme::light;
    std::uint32_t lightAccent = 0x007AFF;
    std::uint32_t darkAccent = 0x0A84FF;

    bool isDark() const { return scheme == platform::ColorScheme::dark; }
    QColor resolve(const platform::Color& color) const;
    friend bool operator==(const Palette&, const Palette&) = default;
};

}  // namespace desk
