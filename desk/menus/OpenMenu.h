// The menu that is open: its entries, where it stands, which entry is highlighted, how far it is scrolled. It knows nothing of how it was asked for or of events; MenuLayer
// turns those into its operations.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "desk/menus/MenuLayout.h"
#include "platform/Geometry.h"
#include "platform/Menus.h"

namespace desk {

class OpenMenu {
public:
    // The frame, in AppKit screen points, may be lower than the layout: then the menu scrolls.
    OpenMenu(std::vector<platform::MenuItem> theItems, MenuLayout theLayout, const platform::CGRect& theFrame);

    const std::vector<platform::MenuItem>& items() const { return entries; }
    const MenuLayout& layout() const { return rows; }
    const platform::CGRect& frame() const { return place; }
    std::optional<std::size_t> highlighted() const { return current; }
    double scrolledBy() const { return offset; }

    bool canChoose(std::size_t row) const { return entries[row].enabled && !entries[row].isSeparator; }
    // Of the row as it stands on the screen now, possibly outside the menu's frame.
    platform::CGRect frameOf(std::size_t row) const;
    // Empty outside the menu, on its padding and on the arrows at its ends.
    std::optional<std::size_t> rowAt(const platform::CGPoint& point) const;

    // In the place of another one: scrolled as far as that was, with the same row highlighted if it can be chosen.
    void goOnFrom(const OpenMenu& before);

    // Answer whether anything looks different now.
    bool highlight(std::optional<std::size_t> row);
    bool scrollBy(double distance);
    bool reveal(std::size_t row);
    // To the next entry that can be chosen in that direction (1 or -1), around the ends; from nowhere, to the first or last one. It is scrolled into view.
    bool walk(int direction);
    // To the first entry that can be chosen from this row on, in that direction.
    bool walkFrom(std::size_t start, int direction);

    // As far as the menu is high.
    bool walkPage(int direction);
    // To the first entry whose title begins so, whatever the case of ASCII letters; stays where it is without one.
    bool highlightTitle(std::string_view beginning);

    // Whether there is more to see beyond that end (-1 the top, 1 the bottom).
    bool canScroll(int direction) const { return direction < 0 ? offset > 0 : offset < furthest(); }
    // Over which arrow the point is: -1, 1, or 0 for neither.
    int scrollerAt(const platform::CGPoint& point) const;

private:
    double furthest() const;
    std::optional<std::size_t> choosable(std::size_t from, int direction, std::size_t count) const;

    std::vector<platform::MenuItem> entries;
    MenuLayout rows;
    platform::CGRect place;
    std::optional<std::size_t> current;
    double offset = 0;
};

}  // namespace desk
