// Where the parts of a folder window lie, in points from its top left corner, y downward: what is drawn, and what a press hits. It knows how many rows there are, not what they
// hold; window buttons and edges are those of every window (desk/WindowFrame.h).
#pragma once

#include <cstddef>
#include <optional>
#include <utility>

#include "platform/Geometry.h"

namespace desk {

enum class FinderPart { titleBar, back, forward, sidebar, place, header, row, emptyList, scroller, status };

struct FinderHit {
    FinderPart part = FinderPart::titleBar;
    std::size_t index = 0;  // of the place or the row
    friend bool operator==(const FinderHit&, const FinderHit&) = default;
};

// How many there are.
struct FinderCounts {
    std::size_t rows = 0;
    std::size_t favourites = 0;
    std::size_t volumes = 0;
};

class FinderLayout {
public:
    // Scrolled by more than there is means scrolled to the end.
    FinderLayout(platform::CGSize theSize, FinderCounts theCounts, double wantedScroll = 0);

    platform::CGSize size() const { return whole; }
    // 0 in a window that is too narrow for a sidebar.
    double sidebarWidth() const { return sidebar; }
    platform::CGRect back() const;
    platform::CGRect forward() const;
    platform::CGRect header() const;
    // The part of the list that can be seen.
    platform::CGRect list() const;
    platform::CGRect status() const;

    enum class Section { favourites, volumes };
    platform::CGRect sectionTitle(Section section) const;
    platform::CGRect place(std::size_t index) const;

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

    FinderHit hit(const platform::CGPoint& point) const;

private:
    std::optional<std::size_t> placeAt(const platform::CGPoint& point) const;

    platform::CGSize whole;
    FinderCounts counts;
    double sidebar;
    double offset;
};

}  // namespace desk
