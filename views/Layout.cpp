#include "views/Layout.h"

#include <algorithm>
#include <sstream>

namespace views {

std::string Layout::placeOf(std::int32_t index) const {
    std::string place;
    for (std::int32_t at = index; at >= 0; at = (*this)[at].parent) {
        const LayoutItem& item = (*this)[at];
        std::int32_t ordinal = 0;
        if (item.parent >= 0)
            for (std::int32_t child = (*this)[item.parent].firstChild; child != at; child = (*this)[child].nextSibling)
                ordinal += 1;
        // A key alone would be enough among its siblings, but may itself look like an ordinal.
        place += '/';
        place += item.key == nullptr ? std::to_string(ordinal) : "#" + *item.key;
    }
    return place;
}

std::string Layout::description() const {
    std::ostringstream lines;
    forEach([&](std::int32_t, const LayoutItem& item) {
        for (std::int32_t at = item.parent; at >= 0; at = (*this)[at].parent) lines << "  ";
        lines << item.rule->name();
        if (item.node != nullptr && item.node->shownText() != nullptr) lines << " \"" << *item.node->shownText() << '"';
        if (item.node != nullptr && item.node->shownSymbol() != nullptr) lines << ' ' << *item.node->shownSymbol();
        lines << ' ' << item.frame.minX() << ' ' << item.frame.minY() << ' ' << item.frame.width() << ' '
              << item.frame.height() << '\n';
    });
    return lines.str();
}

}  // namespace views
