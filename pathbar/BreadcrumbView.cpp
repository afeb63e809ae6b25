#include "pathbar/BreadcrumbView.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "pathbar/ChildFolders.h"
#include "pathbar/PathBarMetrics.h"

namespace brindle {

using namespace views;

namespace {

constexpr double rowInset = 10;
constexpr double crumbLeading = 4;
constexpr double crumbTrailing = 2;
constexpr double lastCrumbTrailing = 4;

View chevron() {
    return Image("chevron.right")
        .font({.size = 10, .weight = FontWeight::semibold})
        .foregroundStyle(ColorRole::secondary);
}

}  // namespace

BreadcrumbView::BreadcrumbView(platform::Platform& thePlatform, std::vector<BreadcrumbItem> theItems,
                               std::function<void(const BreadcrumbItem&)> theOnSelect, std::function<void()> theOnEdit)
    : platform(thePlatform),
      items(std::move(theItems)),
      onSelect(std::move(theOnSelect)),
      onEdit(std::move(theOnEdit)) {}

double BreadcrumbView::fullWidth(std::span<const BreadcrumbItem> of) const {
    return brindle::fullWidth(platform.text, of);
}

VisibleItems BreadcrumbView::visibleItems(double width) const {
    return brindle::visibleItems(platform.text, items, width);
}

std::vector<BreadcrumbItem> BreadcrumbView::childFolders(const BreadcrumbItem& of) const {
    return brindle::childFolders(platform, of);
}

View BreadcrumbView::body() const {
    return GeometryReader([this](CGSize size) {
        return ZStack({.alignment = Alignment::leading},
                      View(Color::of(ColorRole::clear)).onTapGesture(onEdit).accessibilityIdentifier("row"),
                      row(visibleItems(std::max(0.0, size.width - 2 * rowInset))));
    });
}

View BreadcrumbView::row(const VisibleItems& visible) const {
    const auto unit = [this](std::size_t offset, const BreadcrumbItem& item) { return crumbUnit(offset, item); };
    return HStack({.spacing = 0}, visible.hiddenItems.empty() ? EmptyView() : ellipsisMenu(visible.hiddenItems.size()),
                  ForEach(visible.items, &BreadcrumbItem::id, unit))
        .font(breadcrumbFont)
        .padding(Edge::horizontal, rowInset)
        .frame({.maxWidth = infinity, .alignment = Alignment::leading});
}

// The nearer a crumb is to the current folder, the longer it keeps its room.
View BreadcrumbView::crumbUnit(std::size_t offset, const BreadcrumbItem& item) const {
    return HStack({.spacing = 0}, crumbButton(item), item.isLast ? EmptyView() : folderMenu(item))
        .layoutPriority(static_cast<double>(offset + 1));
}

View BreadcrumbView::crumbButton(const BreadcrumbItem& item) const {
    return Button([this, chosen = &item] { onSelect(*chosen); },
                  Text(item.title)
                      .foregroundStyle(item.isLast ? ColorRole::accent : ColorRole::primary)
                      .padding({.leading = crumbLeading, .trailing = item.isLast ? lastCrumbTrailing : crumbTrailing})
                      .frame({.maxHeight = infinity})
                      .contentShape())
        .accessibilityIdentifier("crumb");
}

View BreadcrumbView::folderMenu(const BreadcrumbItem& item) const {
    return Menu([this, parent = &item] { return folderEntries(*parent); },
                chevron().frame({.width = PathBarMetrics::chevronWidth}).frame({.maxHeight = infinity}).contentShape())
        .accessibilityIdentifier("chevron")
        .fixedSize(true, false);
}

View BreadcrumbView::folderEntries(const BreadcrumbItem& of) const {
    const auto children = std::make_shared<const std::vector<BreadcrumbItem>>(childFolders(of));
    if (children->empty()) return Text("No Subfolders");
    return ForEach(*children, &BreadcrumbItem::id, [&](std::size_t offset, const BreadcrumbItem& child) {
        return Button([this, children, offset] { onSelect((*children)[offset]); }, Label(child.title, "folder"));
    });
}

// The nearest hidden folder stands on top, the root at the bottom.
View BreadcrumbView::ellipsisMenu(std::size_t hiddenCount) const {
    const auto entries = [this, hiddenCount] {
        View group = Group();
        for (std::size_t index = hiddenCount; index-- > 0;) {
            const BreadcrumbItem& item = items[index];
            group.addChildren(Button([this, chosen = &item] { onSelect(*chosen); },
                                     Label(item.title, item.path == "/" ? "internaldrive" : "folder")));
        }
        return group;
    };
    return Menu(entries, HStack({.spacing = 6}, Text("…").foregroundStyle(ColorRole::secondary), chevron())
                             .padding(Edge::horizontal, 4)
                             .frame({.maxHeight = infinity})
                             .contentShape())
        .accessibilityIdentifier("ellipsis")
        .fixedSize(true, false);
}

}  // namespace brindle
