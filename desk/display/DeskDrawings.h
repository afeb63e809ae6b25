// Draws alerts, and the plain windows of other processes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desk/display/DrawingBuilder.h"
#include "desk/display/WindowChrome.h"
#include "desk/processes/Permissions.h"
#include "desk/system/AlertLayout.h"
#include "platform/Geometry.h"

namespace desk {

// The alert's own rectangle at (0, 0); places its buttons as the layout says.
void drawAlert(DrawingBuilder& builder, const SystemAlert& alert, const AlertLayout& layout);
// With the application's icon, and its name or identifier.
void drawOtherWindow(DrawingBuilder& builder, platform::CGSize size, std::string_view title,
                     std::string_view application, std::string_view note, WindowLook look);

}  // namespace desk
