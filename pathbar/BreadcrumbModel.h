// What crumbs a window's bar has, and which of them fit a row: pure logic on the text of a path and the widths of
// titles. Nothing here touches the disk: no volume name, home folder or localised name is looked up.
#pragma once

#include <span>
#include <vector>

#include "pathbar/BreadcrumbItem.h"
#include "platform/Text.h"
#include "tracking/FinderWindowState.h"

namespace brindle {

// The font in which crumbs are measured and drawn.
inline constexpr platform::Font breadcrumbFont{15, platform::FontWeight::regular};

// From the root down, never empty; the last one alone has isLast. A window without a path has one placeholder crumb.
std::vector<BreadcrumbItem> breadcrumbItems(const FinderWindowState& windowState);

// The width in points that a row needs to show exactly these items.
double fullWidth(platform::TextSystem& text, std::span<const BreadcrumbItem> items);

// Both are parts of the list that was asked about, in path order.
struct VisibleItems {
    std::span<const BreadcrumbItem> hiddenItems;
    std::span<const BreadcrumbItem> items;
};

// Folds the root end of the path away until the rest fits the width beside an ellipsis. The last item always stays.
VisibleItems visibleItems(platform::TextSystem& text, std::span<const BreadcrumbItem> items, double width);

}  // namespace brindle
