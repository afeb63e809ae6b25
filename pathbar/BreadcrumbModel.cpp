#include "pathbar/BreadcrumbModel.h"

#include <cmath>
#include <string_view>

#include "pathbar/PathBarMetrics.h"

namespace brindle {

namespace {

constexpr double crumbInset = 6;
constexpr double ellipsisRoom = 40;

double widthOf(platform::TextSystem& text, const BreadcrumbItem& item) {
    return std::ceil(text.width(item.title, breadcrumbFont)) + crumbInset +
           (item.isLast ? 0 : PathBarMetrics::chevronWidth);
}

std::string_view withoutLeadingSlashes(std::string_view path) {
    const std::size_t first = path.find_first_not_of('/');
    return first == std::string_view::npos ? std::string_view() : path.substr(first);
}

BreadcrumbItem crumb(std::size_t index, std::string_view name, std::string path) {
    BreadcrumbItem item;
    item.id = std::to_string(index);
    item.id += '-';
    item.id += name;
    item.title = name;
    item.path = std::move(path);
    return item;
}

}  // namespace

std::vector<BreadcrumbItem> breadcrumbItems(const FinderWindowState& windowState) {
    if (windowState.path.empty()) return {{"virtual-location", windowState.displayName, "", true}};
    std::string_view rest = windowState.selectedFilePath ? *windowState.selectedFilePath : windowState.path;

    std::vector<BreadcrumbItem> items;
    items.reserve(8);
    items.push_back({"0-root", "Macintosh HD", "/", false});
    std::string path;
    while (!(rest = withoutLeadingSlashes(rest)).empty()) {
        const std::string_view name = rest.substr(0, rest.find('/'));
        rest.remove_prefix(name.size());
        path += '/';
        path += name;
        items.push_back(crumb(items.size(), name, path));
    }
    items.back().isLast = true;
    return items;
}

double fullWidth(platform::TextSystem& text, std::span<const BreadcrumbItem> items) {
    double width = 0;
    for (const BreadcrumbItem& item : items) width += widthOf(text, item);
    return width;
}

// Every width is a whole number of points, so adding one item's to the sum of the rest gives what measuring the
// candidate anew would.
VisibleItems visibleItems(platform::TextSystem& text, std::span<const BreadcrumbItem> items, double width) {
    if (items.size() < 2 || fullWidth(text, items) <= width) return {{}, items};
    std::size_t first = items.size() - 1;
    double kept = widthOf(text, items[first]);
    while (first > 0) {
        const double candidate = kept + widthOf(text, items[first - 1]);
        if (candidate + ellipsisRoom > width) break;
        kept = candidate;
        first -= 1;
    }
    return {items.first(first), items.subspan(first)};
}

}  // namespace brindle
