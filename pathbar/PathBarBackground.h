// The plate behind a bar's row in each style, light and dark. The bar and the settings window's previews show it.
#pragma once

#include "pathbar/PathBarDesign.h"
#include "platform/Drawing.h"
#include "views/View.h"

namespace brindle {

views::View pathBarBackground(PathBarDesign design, platform::ColorScheme colorScheme);

}  // namespace brindle
