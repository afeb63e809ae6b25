// The list of a folder window: its columns' titles, and of its rows those in sight. Each row has the id of its FinderHit.
#pragma once

#include "desk/finder/FinderContent.h"
#include "desk/finder/FinderLayout.h"
#include "desk/look/Shades.h"
#include "views/View.h"

namespace desk {

views::View finderHeaderView(const FinderLayout& layout);
views::View finderListView(const FinderContent& content, const FinderLayout& layout, const Shades& shades);

}  // namespace desk
