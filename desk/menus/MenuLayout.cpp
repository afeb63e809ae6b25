#include "desk/menus/MenuLayout.h"

#include <algorithm>
#include <cmath>

namespace desk {

namespace {

constexpr double rowHeight = 22;
constexpr double separatorHeight = 11;
constexpr double leastWidth = 80;
constexpr double mostWidth = 560;

// Of very many titles only the longest are measured: the rest can't be much wider.
constexpr std::size_t mostMeasured = 300;

double widestTitle(const std::vector<platform::MenuItem>& items, platform::TextSystem& text) {
    std::vector<const std::string*> titles;
    titles.reserve(items.size());
    for (const platform::MenuItem& item : items) titles.push_back(&item.title);
    if (titles.size() > mostMeasured) {
        const auto end = titles.begin() + mostMeasured;
        std::nth_element(titles.begin(), end, titles.end(),
                         [](const std::string* a, const std::string* b) { return a->size() > b->size(); });
        titles.erase(end, titles.end());
    }
    double widest = 0;
    for (const std::string* title : titles) widest = std::max(widest, text.width(*title, menuFont));
    return widest;
}

}  // namespace

MenuLayout::MenuLayout(const std::vector<platform::MenuItem>& items, platform::TextSystem& text) {
    tops.reserve(items.size() + 1);
    tops.push_back(menuPadding);
    for (const platform::MenuItem& item : items) {
        tops.push_back(tops.back() + (item.isSeparator ? separatorHeight : rowHeight));
        if (!item.symbol.empty()) symbolColumn = menuSymbolWidth;
    }
    const double titles = std::ceil(widestTitle(items, text));
    width = std::clamp(2 * menuTextInset + symbolColumn + titles, leastWidth, mostWidth);
}

std::optional<std::size_t> MenuLayout::rowAt(double y) const {
    const auto next = std::upper_bound(tops.begin(), tops.end(), y);
    if (next == tops.begin() || next == tops.end()) return std::nullopt;
    return static_cast<std::size_t>(next - tops.begin()) - 1;
}

}  // namespace desk
