// What a folder window of Finder shows, and its info panel: title bar, sidebar, list, status line, square-cornered. The id of each part is that of its FinderHit.
#pragma once

#include "desk/finder/FinderContent.h"
#include "desk/look/Shades.h"
#include "views/View.h"

namespace desk {

views::View finderWindowView(const FinderContent& content, const Shades& shades);
views::View infoPanelView(const PlainWindow& window, const FinderItem& item, const std::string& folder,
                          const Shades& shades);

}  // namespace desk
