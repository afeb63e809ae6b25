// What a layout looks like, as a drawing.
#pragma once

#include "platform/Drawing.h"
#include "platform/Text.h"
#include "views/Layout.h"

namespace views {

// All shapes come before all text and symbols: painters are several times faster on such a list, and no view here has a
// shape in front of text. Shapes lie on half points, the pixels of a 2x display.
void draw(const Layout& layout, platform::TextSystem& text, platform::Drawing& into);

}  // namespace views
