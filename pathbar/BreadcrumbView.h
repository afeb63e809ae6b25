// The row of crumbs: a button for each, a folder menu behind each but the last, an ellipsis menu for those that don't
// fit, and empty space that asks for editing. It reports what was chosen and navigates nothing itself; which crumbs fit
// is BreadcrumbModel's business.
#pragma once

#include <functional>
#include <vector>

#include "pathbar/BreadcrumbModel.h"
#include "platform/Platform.h"
#include "views/Views.h"

namespace brindle {

class BreadcrumbView {
public:
    BreadcrumbView(platform::Platform& thePlatform, std::vector<BreadcrumbItem> theItems,
                   std::function<void(const BreadcrumbItem&)> theOnSelect, std::function<void()> theOnEdit);

    views::View body() const;

    double fullWidth(std::span<const BreadcrumbItem> of) const;
    VisibleItems visibleItems(double width) const;
    // The folders inside that item's folder, as they are on disk now; empty on any failure.
    std::vector<BreadcrumbItem> childFolders(const BreadcrumbItem& of) const;

private:
    views::View row(const VisibleItems& visible) const;
    views::View crumbUnit(std::size_t offset, const BreadcrumbItem& item) const;
    views::View crumbButton(const BreadcrumbItem& item) const;
    views::View folderMenu(const BreadcrumbItem& item) const;
    views::View folderEntries(const BreadcrumbItem& of) const;
    views::View ellipsisMenu(std::size_t hiddenCount) const;

    platform::Platform& platform;

public:
    std::vector<BreadcrumbItem> items;
    std::function<void(const BreadcrumbItem&)> onSelect;
    std::function<void()> onEdit;
};

}  // namespace brindle
