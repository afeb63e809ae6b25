// How large a menu is and where its rows stand in it. View space: the origin is the top left of the whole menu as if nothing of it were cut off, y downward. The
// display draws by it and input hits by it; where the menu stands on the screen is Placement's business.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/Menus.h"
#include "platform/Text.h"

namespace desk {

inline constexpr platform::Font menuFont{13, platform::FontWeight::regular};
inline constexpr double menuPadding = 5;          // around all rows
inline constexpr double menuTextInset = 14;       // from the menu's edge
inline constexpr double menuSymbolWidth = 24;     // the column before the titles, if any row has a symbol
inline constexpr double menuScrollerHeight = 18;  // of the arrow over each end where there is more to see

class MenuLayout {
public:
    MenuLayout(const std::vector<platform::MenuItem>& items, platform::TextSystem& text);

    platform::CGSize size() const { return {width, tops.back() + menuPadding}; }
    double top(std::size_t row) const { return tops[row]; }
    double bottom(std::size_t row) const { return tops[row + 1]; }
    // The row at that height; empty above the first and below the last.
    std::optional<std::size_t> rowAt(double y) const;
    bool hasSymbols() const { return symbolColumn > 0; }

private:
    std::vector<double> tops;  // of each row, and at last the bottom of all
    double width = 0;
    double symbolColumn = 0;
};

}  // namespace desk
