// Colours that the desk's own surfaces have in the light and in the dark; those that have a role of their own are taken by it instead.
#pragma once

#include <cstdint>

#include "platform/Drawing.h"

namespace desk {

struct Shades {
    platform::ColorScheme scheme = platform::ColorScheme::light;

    platform::Color operator()(std::uint32_t light, std::uint32_t dark, double opacity = 1) const {
        return platform::Color::hex(scheme == platform::ColorScheme::dark ? dark : light, opacity);
    }
    // Black on light, white on dark.
    platform::Color ink(double opacity) const { return (*this)(0x000000, 0xFFFFFF, opacity); }
};

}  // namespace desk
