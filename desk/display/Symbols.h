// The desk's symbol set: the names that the system asks for, each with its room and its drawing, of our own design in the usual shapes. A new
// symbol is one function and one line of the table in the source.
#pragma once

#include <QImage>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/Drawing.h"
#include "platform/Geometry.h"

namespace desk {

// In points, in text of that font; empty for an unknown name.
std::optional<platform::CGSize> symbolSize(std::string_view name, platform::Font font);

// The symbol as black on nothing, at `scale` pixels a point; a null image for an unknown name.
QImage symbolMask(std::string_view name, platform::Font font, double scale);

std::vector<std::string_view> symbolNames();

}  // namespace desk
