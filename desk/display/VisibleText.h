// What is drawn for a text: control characters and line separators, which names may hold, become visible characters of ordinary width, so that
// no name breaks its line or hides a part of itself. Measuring and painting both go through here.
#pragma once

#include <QString>
#include <string_view>

namespace desk {

// Bytes that aren't UTF-8 become U+FFFD.
QString visibleText(std::string_view text);

}  // namespace desk
