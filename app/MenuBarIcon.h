// The application's icon in the menu bar: a miniature address bar. The menu bar gives it its colour.
#pragma once

#include "platform/Images.h"

namespace brindle::MenuBarIcon {

// Drawn at the first call.
const platform::NSImage& image();

}  // namespace brindle::MenuBarIcon
