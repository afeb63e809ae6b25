#include "desk/finder/FinderLayout.h"

#include <algorithm>
#include <cmath>

#include "desk/windows/WindowFrame.h"

namespace desk {

using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;

namespace {

constexpr double headerHeight = 24;
constexpr double listRowHeight = 24;
constexpr double statusHeight = 24;
constexpr double rowInset = 10;
constexpr double wideSidebar = 168;
constexpr double narrowestWithSidebar = 460;

constexpr double arrowWidth = 20;
constexpr double narrowestWithArrows = 200;
constexpr double firstSection = windowTitleBarHeight + 8;
constexpr double sectionTitleHeight = 20;
constexpr double belowSectionTitle = 22;
constexpr double betweenSections = 10;
constexpr double placeHeight = 26;

constexpr double scrollerWidth = 8;
constexpr double knobWidth = 5;
constexpr double leastKnob = 24;

}  // namespace

FinderLayout::FinderLayout(platform::CGSize theSize, FinderCounts theCounts, double wantedScroll)
    : whole(theSize),
      counts(theCounts),
      sidebar(theSize.width >= narrowestWithSidebar ? wideSidebar : 0),
      offset(std::clamp(wantedScroll, 0.0, mostScrolled())) {}

CGRect FinderLayout::back() const {
    if (whole.width < narrowestWithArrows) return {};
    return CGRectMake(sidebar > 0 ? sidebar + 12 : windowButtonsWidth, 0, arrowWidth, windowTitleBarHeight);
}

CGRect FinderLayout::forward() const {
    return CGRectMake(back().maxX(), 0, arrowWidth, windowTitleBarHeight);
}

CGRect FinderLayout::header() const {
    return CGRectMake(sidebar, windowTitleBarHeight, whole.width - sidebar, headerHeight);
}

CGRect FinderLayout::list() const {
    const double top = header().maxY();
    return CGRectMake(sidebar, top, whole.width - sidebar, std::max(0.0, whole.height - statusHeight - top));
}

CGRect FinderLayout::status() const {
    return CGRectMake(sidebar, whole.height - statusHeight, whole.width - sidebar, statusHeight);
}

CGRect FinderLayout::sectionTitle(Section section) const {
    const double favourites = belowSectionTitle + placeHeight * static_cast<double>(counts.favourites);
    const double top = section == Section::favourites ? firstSection : firstSection + favourites + betweenSections;
    return CGRectMake(0, top, sidebar, sectionTitleHeight);
}

CGRect FinderLayout::place(std::size_t index) const {
    const bool isFavourite = index < counts.favourites;
    const CGRect title = sectionTitle(isFavourite ? Section::favourites : Section::volumes);
    const auto above = static_cast<double>(isFavourite ? index : index - counts.favourites);
    return CGRectMake(10, title.minY() + belowSectionTitle + above * placeHeight, sidebar - 20, placeHeight);
}

CGRect FinderLayout::row(std::size_t index) const {
    const CGRect area = list();
    const double top = area.minY() - offset + static_cast<double>(index) * listRowHeight;
    return CGRectMake(area.minX() + rowInset, top, area.width() - 2 * rowInset, listRowHeight);
}

std::size_t FinderLayout::firstRow() const {
    return static_cast<std::size_t>(offset / listRowHeight);
}

std::size_t FinderLayout::rowsInSight() const {
    const double end = std::ceil((offset + list().height()) / listRowHeight);
    return static_cast<std::size_t>(end) - firstRow();
}

CGPoint FinderLayout::inWholeList(const CGPoint& point) const {
    return {point.x - list().minX(), point.y - list().minY() + offset};
}

std::pair<std::size_t, std::size_t> FinderLayout::rowsBetween(double top, double bottom) const {
    const auto most = static_cast<double>(counts.rows);
    const auto row = [&](double value) { return static_cast<std::size_t>(std::clamp(value, 0.0, most)); };
    return {row(std::floor(top / listRowHeight)), row(std::ceil(bottom / listRowHeight))};
}

double FinderLayout::mostScrolled() const {
    return std::max(0.0, static_cast<double>(counts.rows) * listRowHeight - list().height());
}

double FinderLayout::scrolledToShow(std::size_t index) const {
    const double top = static_cast<double>(index) * listRowHeight;
    return std::clamp(offset, std::clamp(top + listRowHeight - list().height(), 0.0, top), top);
}

std::optional<CGRect> FinderLayout::knob() const {
    const CGRect area = list();
    if (mostScrolled() <= 0 || area.height() < 2 * leastKnob) return std::nullopt;
    const double content = static_cast<double>(counts.rows) * listRowHeight;
    const double height = std::max(leastKnob, area.height() * area.height() / content);
    const double top = area.minY() + (area.height() - height) * offset / mostScrolled();
    return CGRectMake(area.maxX() - scrollerWidth, top, knobWidth, height);
}

double FinderLayout::scrolledByKnob(double distance) const {
    const auto moving = knob();
    if (!moving) return 0;
    return distance * mostScrolled() / (list().height() - moving->height());
}

std::optional<std::size_t> FinderLayout::placeAt(const CGPoint& point) const {
    for (std::size_t index = 0; index < counts.favourites + counts.volumes; ++index)
        if (containsInside(place(index), point)) return index;
    return std::nullopt;
}

FinderHit FinderLayout::hit(const CGPoint& point) const {
    if (sidebar > 0 && point.x < sidebar) {
        if (const auto index = placeAt(point)) return {FinderPart::place, *index};
        return {point.y <= windowTitleBarHeight ? FinderPart::titleBar : FinderPart::sidebar};
    }
    if (containsInside(back(), point)) return {FinderPart::back};
    if (containsInside(forward(), point)) return {FinderPart::forward};
    if (point.y <= windowTitleBarHeight) return {FinderPart::titleBar};
    const CGRect area = list();
    if (!containsInside(area, point))
        return {containsInside(header(), point) ? FinderPart::header : FinderPart::status};
    if (knob() && point.x >= area.maxX() - scrollerWidth - 2) return {FinderPart::scroller};
    const auto index =
        static_cast<std::size_t>(std::max(0.0, std::ceil((point.y - area.minY() + offset) / listRowHeight) - 1));
    const bool isOnRow = index < counts.rows && containsInside(row(index), point);
    return isOnRow ? FinderHit{FinderPart::row, index} : FinderHit{FinderPart::emptyList};
}

}  // namespace desk
