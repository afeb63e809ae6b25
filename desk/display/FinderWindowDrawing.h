// Draws a folder window of Finder, and its info panel: title bar, sidebar, list, status line. The whole window, square-cornered.
#pragma once

#include "desk/display/DrawingBuilder.h"
#include "desk/display/FinderContent.h"

namespace desk {

void drawFinderWindow(DrawingBuilder& builder, const FinderContent& content);
void drawInfoPanel(DrawingBuilder& builder, platform::CGSize size, const std::string& title, const FinderItem& item,
                   const std::string& folder, WindowLook look);

}  // namespace desk
