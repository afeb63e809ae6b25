#include "desk/windows/WindowStack.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace desk {

using platform::NSWindowOrderingMode;

void WindowStack::add(ServerWindow window) {
    window.orderedIn = false;
    remove(window.number);
    auto entry = std::make_unique<ServerWindow>(std::move(window));
    const auto place = frontToBack.begin() + static_cast<std::ptrdiff_t>(frontOfLevel(entry->level));
    frontToBack.insert(place, entry.get());
    const std::int64_t number = entry->number;
    byNumber.emplace(number, std::move(entry));
}

void WindowStack::remove(std::int64_t number) {
    const auto entry = byNumber.find(number);
    if (entry == byNumber.end()) return;
    const bool wasOnScreen = isOnScreen(*entry->second);
    if (std::exchange(entry->second->orderedIn, false)) cameOrWent(*entry->second);
    frontToBack.erase(placeOf(*entry->second));
    byNumber.erase(entry);
    if (wasOnScreen) changed();
}

const ServerWindow* WindowStack::find(std::int64_t number) const {
    const auto entry = byNumber.find(number);
    return entry == byNumber.end() ? nullptr : entry->second.get();
}

ServerWindow* WindowStack::find(std::int64_t number) {
    return const_cast<ServerWindow*>(std::as_const(*this).find(number));
}

void WindowStack::setFrame(std::int64_t number, const platform::CGRect& frame) {
    ServerWindow* window = find(number);
    if (window == nullptr || window->frame == frame) return;
    window->frame = frame;
    if (isOnScreen(*window)) changed();
}

void WindowStack::setTitle(std::int64_t number, const std::string& title) {
    ServerWindow* window = find(number);
    if (window == nullptr || window->title == title) return;
    window->title = title;
    if (isOnScreen(*window)) changed();
}

void WindowStack::setLevel(std::int64_t number, int level) {
    ServerWindow* window = find(number);
    if (window == nullptr || window->level == level) return;
    frontToBack.erase(placeOf(*window));
    window->level = level;
    frontToBack.insert(frontToBack.begin() + static_cast<std::ptrdiff_t>(frontOfLevel(level)), window);
    if (isOnScreen(*window)) changed();
}

void WindowStack::order(std::int64_t number, NSWindowOrderingMode mode, std::int64_t relativeTo) {
    ServerWindow* window = find(number);
    if (window == nullptr) return;
    const bool wasOnScreen = isOnScreen(*window);
    const bool wasIn = window->isIn();
    bool moved = false;
    window->orderedIn = mode != NSWindowOrderingMode::out;
    if (window->orderedIn) {
        window->space = space;
        moved = move(*window, [&] { return destination(*window, mode, relativeTo); });
    }
    if (wasIn != window->isIn()) cameOrWent(*window);
    if (wasOnScreen != isOnScreen(*window) || (wasOnScreen && moved)) changed();
}

std::size_t WindowStack::destination(const ServerWindow& window, NSWindowOrderingMode mode,
                                     std::int64_t relativeTo) const {
    const bool above = mode == NSWindowOrderingMode::above;
    const ServerWindow* other = relativeTo == window.number ? nullptr : find(relativeTo);
    const bool isGone = relativeTo != 0 && (other == nullptr || !other->orderedIn);
    if (isGone) return frontOfLevel(window.level);
    if (other == nullptr || other->level != window.level)
        return above ? frontOfLevel(window.level) : backOfLevel(window.level);
    const auto place = std::find(frontToBack.begin(), frontToBack.end(), other) - frontToBack.begin();
    return static_cast<std::size_t>(above ? place : place + 1);
}

void WindowStack::raise(std::int64_t number) {
    ServerWindow* window = find(number);
    if (window == nullptr || !window->orderedIn) return;
    if (move(*window, [&] { return frontOfLevel(window->level); })) changed();
}

void WindowStack::lower(std::int64_t number) {
    ServerWindow* window = find(number);
    if (window == nullptr || !window->orderedIn) return;
    if (move(*window, [&] { return backOfLevel(window->level); })) changed();
}

void WindowStack::raiseAll(std::int32_t owner) {
    bool moved = false;
    for (auto begin = frontToBack.begin(); begin != frontToBack.end();) {
        const int level = (*begin)->level;
        const auto end =
            std::find_if(begin, frontToBack.end(), [&](const auto* window) { return window->level != level; });
        const auto isOwn = [&](const ServerWindow* window) { return window->owner == owner && window->orderedIn; };
        if (!std::is_partitioned(begin, end, isOwn)) {
            std::stable_partition(begin, end, isOwn);
            moved = true;
        }
        begin = end;
    }
    if (moved) changed();
}

void WindowStack::setMinimized(std::int64_t number, bool minimized) {
    ServerWindow* window = find(number);
    if (window == nullptr || std::exchange(window->minimized, minimized) == minimized) return;
    changed();
}

std::optional<platform::CGRect> WindowStack::zoomedFrame(std::int64_t number,
                                                         const std::vector<platform::NSScreen>& screens,
                                                         platform::CGSize most) {
    ServerWindow* window = find(number);
    const auto* screen = window == nullptr ? nullptr : platform::screenShowingMost(screens, window->frame);
    if (screen == nullptr) return std::nullopt;
    platform::CGRect room = screen->visibleFrame;
    room.size = {std::min(room.width(), most.width), std::min(room.height(), most.height)};
    room.origin.y = screen->visibleFrame.maxY() - room.height();
    // The height alone can have been changed to make room for what stands above it.
    const bool isZoomed = window->frameBeforeZoom && window->frame.width() == room.width();
    const platform::CGRect wanted = isZoomed ? *window->frameBeforeZoom : room;
    window->frameBeforeZoom = isZoomed ? std::nullopt : std::optional(window->frame);
    return wanted;
}

void WindowStack::switchToSpace(int newSpace) {
    if (space == newSpace) return;
    std::vector<std::int64_t> affected;
    const auto collect = [&] {
        for (const ServerWindow* window : onScreen())
            if (window->window != nullptr) affected.push_back(window->number);
    };
    collect();
    space = newSpace;
    changed();
    collect();
    for (const std::int64_t number : affected) {
        const ServerWindow* window = find(number);
        if (window != nullptr) tellContent(*window);
    }
    spaceChanged();
}

void WindowStack::tellContent(const ServerWindow& window) const {
    platform::ContentView* content = window.window == nullptr ? nullptr : window.window->contentView();
    if (content != nullptr) content->setOnScreen(isOnScreen(window));
}

void WindowStack::setSpace(std::int64_t number, int newSpace) {
    ServerWindow* window = find(number);
    if (window == nullptr) return;
    const bool wasOnScreen = isOnScreen(*window);
    window->space = newSpace;
    if (wasOnScreen != isOnScreen(*window)) changed();
}

bool WindowStack::isOnScreen(const ServerWindow& window) const {
    return window.orderedIn && !window.minimized && window.space == space;
}

std::vector<const ServerWindow*> WindowStack::onScreen() const {
    std::vector<const ServerWindow*> shown;
    shown.reserve(frontToBack.size());
    for (const ServerWindow* window : frontToBack)
        if (isOnScreen(*window)) shown.push_back(window);
    return shown;
}

std::vector<const ServerWindow*> WindowStack::all() const {
    return {frontToBack.begin(), frontToBack.end()};
}

const ServerWindow* WindowStack::windowAt(const platform::CGPoint& point) const {
    const auto takesPress = [&](const ServerWindow* window) {
        const bool isTransparent = window->window != nullptr && window->window->settings().ignoresMouseEvents;
        return !isTransparent && isOnScreen(*window) && platform::CGRectContainsPoint(window->frame, point);
    };
    const auto found = std::find_if(frontToBack.begin(), frontToBack.end(), takesPress);
    return found == frontToBack.end() ? nullptr : *found;
}

WindowStack::Order::iterator WindowStack::placeOf(const ServerWindow& window) {
    return std::find(frontToBack.begin(), frontToBack.end(), &window);
}

std::size_t WindowStack::frontOfLevel(int level) const {
    const auto place = std::partition_point(frontToBack.begin(), frontToBack.end(),
                                            [&](const auto* window) { return window->level > level; });
    return static_cast<std::size_t>(place - frontToBack.begin());
}

std::size_t WindowStack::backOfLevel(int level) const {
    const auto place = std::partition_point(frontToBack.begin(), frontToBack.end(),
                                            [&](const auto* window) { return window->level >= level; });
    return static_cast<std::size_t>(place - frontToBack.begin());
}

template <typename Where>
bool WindowStack::move(ServerWindow& window, Where where) {
    const auto before = placeOf(window) - frontToBack.begin();
    frontToBack.erase(frontToBack.begin() + before);
    const auto after = static_cast<std::ptrdiff_t>(where());
    frontToBack.insert(frontToBack.begin() + after, &window);
    return before != after;
}

int WindowStack::makeSpace(int desktop) {
    desktopOfOwnSpace.emplace(++lastOwnSpace, desktop);
    return lastOwnSpace;
}

void WindowStack::removeSpace(int ownSpace) {
    const auto removed = desktopOfOwnSpace.extract(ownSpace);
    if (removed.empty()) return;
    const int desktop = removed.mapped();
    std::vector<ServerWindow*> left;
    std::copy_if(frontToBack.begin(), frontToBack.end(), std::back_inserter(left),
                 [ownSpace](const ServerWindow* window) { return window->space == ownSpace; });
    for (ServerWindow* window : left) window->space = desktop;
    if (space == ownSpace) return switchToSpace(desktop);
    for (const ServerWindow* window : left) tellContent(*window);
    if (!left.empty()) changed();
}

std::vector<int> WindowStack::spacesFromTheLeft(int fewestDesktops) const {
    int desktops = fewestDesktops;
    const auto reach = [&](int desktop) {
        if (desktop <= firstOwnSpace) desktops = std::max(desktops, desktop);
    };
    reach(space);
    for (const ServerWindow* window : frontToBack) reach(window->space);
    for (const auto& [own, desktop] : desktopOfOwnSpace) reach(desktop);
    std::vector<int> spaces;
    for (int each = 1; each <= desktops; ++each) {
        spaces.push_back(each);
        for (const auto& [own, desktop] : desktopOfOwnSpace)
            if (desktop == each) spaces.push_back(own);
    }
    return spaces;
}

}  // namespace desk
