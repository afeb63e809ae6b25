// How a folder window is divided, and which rows of its list can be seen: points from the window's top left corner, y downward. It knows how many rows there are, not what they hold;
// what stands in the parts, and what a press hits, the window's view says (FinderWindowView.h).
#pragma once

#include <cstddef>
#include <optional>
#include <utility>

#include "platform/Geometry.h"

namespace desk {

class FinderLayout {
public:
    static constexpr double scrollerWidth = 10;

    // Scrolled by more than there is means scrolled to the end.
    FinderLayout(platform::CGSize theSize, std::size_t theRows, double wantedScroll = 0);

    // 0 in a window that is too narrow for a sidebar.
    double sidebarWidth() const { return sidebar; }
    platform::CGRect header() const;
    // The part of the list that can be seen.
    platform::CGRect list() const;
    platform::CGRect status() const;

    platform::CGRect row(std::size_t index) const;
    // Those in sight, entirely or in part; rows beyond the last entry are stripes.
    std::size_t firstRow() const;
    std::size_t rowsInSight() const;
    // A point of the window as one of the whole list, which doesn't move when it is scrolled; and the entries from one height of it to another, the last one excluded.
    platform::CGPoint inWholeList(const platform::CGPoint& point) const;
    std::pair<std::size_t, std::size_t> rowsBetween(double top, double bottom) const;

    double scrolled() const { return offset; }
    double mostScrolled() const;
    double scrolledToShow(std::size_t index) const;
    // None while everything can be seen.
    std::optional<platform::CGRect> knob() const;
    // How far the list scrolls as the knob moves by that much.
    double scrolledByKnob(double distance) const;

private:
    platform::CGSize whole;
    std::size_t rows;
    double sidebar;
    double offset;
};

}  // namespace desk
