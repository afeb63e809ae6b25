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

constexpr double knobInset = 8;
constexpr double knobWidth = 5;
constexpr double leastKnob = 24;

}  // namespace

FinderLayout::FinderLayout(platform::CGSize theSize, std::size_t theRows, double wantedScroll)
    : whole(theSize),
      rows(theRows),
      sidebar(theSize.width >= narrowestWithSidebar ? wideSidebar : 0),
      offset(std::clamp(wantedScroll, 0.0, mostScrolled())) {}

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
    const auto most = static_cast<double>(rows);
    const auto row = [&](double value) { return static_cast<std::size_t>(std::clamp(value, 0.0, most)); };
    return {row(std::floor(top / listRowHeight)), row(std::ceil(bottom / listRowHeight))};
}

double FinderLayout::mostScrolled() const {
    return std::max(0.0, static_cast<double>(rows) * listRowHeight - list().height());
}

double FinderLayout::scrolledToShow(std::size_t index) const {
    const double top = static_cast<double>(index) * listRowHeight;
    return std::clamp(offset, std::clamp(top + listRowHeight - list().height(), 0.0, top), top);
}

std::optional<CGRect> FinderLayout::knob() const {
    const CGRect area = list();
    if (mostScrolled() <= 0 || area.height() < 2 * leastKnob) return std::nullopt;
    const double content = static_cast<double>(rows) * listRowHeight;
    const double height = std::max(leastKnob, area.height() * area.height() / content);
    const double top = area.minY() + (area.height() - height) * offset / mostScrolled();
    return CGRectMake(area.maxX() - knobInset, top, knobWidth, height);
}

double FinderLayout::scrolledByKnob(double distance) const {
    const auto moving = knob();
    if (!moving) return 0;
    return distance * mostScrolled() / (list().height() - moving->height());
}

}  // namespace desk
