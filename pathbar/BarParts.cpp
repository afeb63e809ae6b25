#include "pathbar/BarParts.h"

#include <string_view>

namespace brindle {

namespace {

using platform::CGPoint;
using platform::CGRect;

constexpr double rowInset = 10;

CGPoint emptyPoint(const CGRect& row, const std::vector<BarParts::Crumb>& crumbs) {
    const double end = crumbs.empty() ? row.minX() : crumbs.back().frame.maxX();
    const double x = end < row.maxX() - rowInset ? (end + row.maxX()) / 2 : row.minX() + rowInset / 2;
    return {x, row.midY()};
}

}  // namespace

BarParts BarParts::of(const std::vector<views::AccessibilityElement>& elements) {
    struct Single {
        std::string_view identifier;
        std::optional<CGRect> BarParts::*part;
    };
    static constexpr Single singles[] = {{"ellipsis", &BarParts::ellipsis},
                                         {"copy", &BarParts::copy},
                                         {"brand", &BarParts::brand},
                                         {"plate", &BarParts::plate},
                                         {"field", &BarParts::field}};
    BarParts parts;
    std::optional<CGRect> row;
    for (const auto& element : elements) {
        for (const Single& single : singles)
            if (single.identifier == element.identifier) parts.*single.part = element.frame;
        if (element.identifier == "row") row = element.frame;
        if (element.identifier == "crumb")
            parts.crumbs.push_back({element.key, element.label, element.frame, std::nullopt});
        if (element.identifier == "chevron" && !parts.crumbs.empty()) parts.crumbs.back().chevron = element.frame;
    }
    if (row) parts.empty = emptyPoint(*row, parts.crumbs);
    return parts;
}

}  // namespace brindle
