#include "desk/menus/OpenMenu.h"

#include <algorithm>
#include <utility>

namespace desk {

using platform::CGPoint;
using platform::CGRect;

OpenMenu::OpenMenu(std::vector<platform::MenuItem> theItems, MenuLayout theLayout, const CGRect& theFrame)
    : entries(std::move(theItems)), rows(std::move(theLayout)), place(theFrame) {}

CGRect OpenMenu::frameOf(std::size_t row) const {
    const double height = rows.bottom(row) - rows.top(row);
    return platform::CGRectMake(place.minX(), place.maxY() - (rows.bottom(row) - offset), place.width(), height);
}

std::optional<std::size_t> OpenMenu::rowAt(const CGPoint& point) const {
    if (!platform::CGRectContainsPoint(place, point) || scrollerAt(point) != 0) return std::nullopt;
    // From the top, where the edge itself belongs to the row below it.
    return rows.rowAt(place.maxY() - point.y + offset);
}

void OpenMenu::goOnFrom(const OpenMenu& before) {
    scrollBy(before.offset);
    if (before.current && *before.current < entries.size()) highlight(before.current);
}

bool OpenMenu::highlight(std::optional<std::size_t> row) {
    if (row && !canChoose(*row)) row = std::nullopt;
    return std::exchange(current, row) != row;
}

double OpenMenu::furthest() const {
    return std::max(0.0, rows.size().height - place.height());
}

bool OpenMenu::scrollBy(double distance) {
    const double next = std::clamp(offset + distance, 0.0, furthest());
    return std::exchange(offset, next) != next;
}

bool OpenMenu::reveal(std::size_t row) {
    if (furthest() <= 0) return false;
    const double highest = rows.top(row) - menuScrollerHeight;
    const double lowest = rows.bottom(row) + menuScrollerHeight - place.height();
    if (offset > highest) return scrollBy(highest - offset);
    if (offset < lowest) return scrollBy(lowest - offset);
    return false;
}

std::optional<std::size_t> OpenMenu::choosable(std::size_t from, int direction, std::size_t count) const {
    const std::size_t size = entries.size();
    for (std::size_t step = 0; step < count; ++step) {
        const std::size_t row = direction > 0 ? (from + step) % size : (from + size - step) % size;
        if (canChoose(row)) return row;
    }
    return std::nullopt;
}

bool OpenMenu::walk(int direction) {
    const std::size_t size = entries.size();
    if (size == 0) return false;
    const std::size_t first = direction > 0 ? 0 : size - 1;
    const std::size_t from = !current ? first : (*current + (direction > 0 ? 1 : size - 1)) % size;
    const auto row = choosable(from, direction, size);
    if (!row) return false;
    const bool moved = highlight(row);
    return reveal(*row) || moved;
}

bool OpenMenu::walkFrom(std::size_t start, int direction) {
    const std::size_t size = entries.size();
    if (size == 0) return false;
    const std::size_t from = std::min(start, size - 1);
    const auto row = choosable(from, direction, direction > 0 ? size - from : from + 1);
    if (!row) return false;
    const bool moved = highlight(row);
    return reveal(*row) || moved;
}

bool OpenMenu::walkPage(int direction) {
    if (entries.empty()) return false;
    const std::size_t from = current.value_or(direction > 0 ? 0 : entries.size() - 1);
    const double distance = std::max(0.0, place.height() - 2 * menuScrollerHeight) * direction;
    const double wanted = std::clamp(rows.top(from) + distance, menuPadding, rows.size().height - menuPadding - 1);
    return walkFrom(rows.rowAt(wanted).value_or(from), direction);
}

bool OpenMenu::highlightTitle(std::string_view beginning) {
    const auto begins = [&](const platform::MenuItem& entry) {
        const auto lower = [](char character) {
            return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
        };
        return entry.title.size() >= beginning.size() &&
               std::equal(beginning.begin(), beginning.end(), entry.title.begin(),
                          [&](char a, char b) { return lower(a) == lower(b); });
    };
    for (std::size_t row = 0; row < entries.size(); ++row) {
        if (!canChoose(row) || !begins(entries[row])) continue;
        const bool moved = highlight(row);
        return reveal(row) || moved;
    }
    return false;
}

int OpenMenu::scrollerAt(const CGPoint& point) const {
    if (!platform::CGRectContainsPoint(place, point)) return 0;
    if (canScroll(-1) && point.y >= place.maxY() - menuScrollerHeight) return -1;
    if (canScroll(1) && point.y < place.minY() + menuScrollerHeight) return 1;
    return 0;
}

}  // namespace desk
