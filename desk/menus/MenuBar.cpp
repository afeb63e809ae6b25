#include "desk/menus/MenuBar.h"

#include <algorithm>

#include "desk/Machine.h"
#include "desk/finder/FinderWords.h"
#include "desk/menus/MenuBarView.h"
#include "desk/windows/WindowFrame.h"

namespace desk {

namespace {

using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;

constexpr double roomOnTheRight = 180;  // for clock and status items

}  // namespace

views::LaidOutView MenuBar::shown(const CGRect& strip) const {
    const Process* frontmost = machine.processes.frontmost();
    MenuBarContent content;
    if (frontmost != nullptr) content.titles = menuBarMenus(machine, *frontmost);
    content.clock = clockText(machine.clock.now());
    if (isOpen() && openStrip == strip) content.open = openTitle;
    while (true) {
        views::LaidOutView bar(menuBarView(content, strip.height(), {machine.appearance.colorScheme.get()}), strip.size,
                               machine.text);
        const auto last = bar.frameOf(std::to_string(content.titles.size() - 1));
        if (!last || last->maxX() <= strip.width() - roomOnTheRight) return bar;
        content.titles.pop_back();
    }
}

bool MenuBar::isOpen() const {
    return openMenu != 0 && machine.menus.isOpen(openMenu);
}

std::optional<MenuBar::Place> MenuBar::titleAt(const CGPoint& point) const {
    if (machine.windows.isFullScreenSpace()) return std::nullopt;
    for (const DisplayOptions& options : machine.displays.options()) {
        const CGRect strip = CGRectMake(options.frame.minX(), options.frame.maxY() - options.menuBar,
                                        options.frame.width(), options.menuBar);
        if (options.menuBar <= 0 || !platform::CGRectContainsPoint(strip, point)) continue;
        const views::LaidOutView bar = shown(strip);
        if (const std::string* title = bar.idAt(insideLaidOut(strip, point)))
            return Place{strip, std::stoul(*title), onScreen(strip, *bar.frameOf(*title))};
    }
    return std::nullopt;
}

bool MenuBar::covers(const CGPoint& point) const {
    if (machine.windows.isFullScreenSpace()) return false;
    const auto& screens = machine.displays.screens();
    return std::any_of(screens.begin(), screens.end(), [&](const platform::NSScreen& screen) {
        return platform::CGRectContainsPoint(screen.frame, point) && point.y >= screen.visibleFrame.maxY();
    });
}

std::optional<std::int32_t> MenuBar::take(const platform::NSEvent& event) {
    if (platform::isKeyEvent(event.type) || !covers(event.locationInWindow)) return std::nullopt;
    const auto place = titleAt(event.locationInWindow);
    if (event.type == platform::NSEventType::leftMouseDown && place) open(*place);
    return 0;
}

void MenuBar::mouseIsAt(const CGPoint& point) {
    if (!isOpen()) return;
    const auto place = titleAt(point);
    if (place && !(openStrip == place->strip && openTitle == place->title)) open(*place);
}

void MenuBar::open(const Place& place) {
    const Process* frontmost = machine.processes.frontmost();
    if (frontmost == nullptr) return;
    const std::vector<std::string> titles = menuBarMenus(machine, *frontmost);
    if (place.title >= titles.size()) return;
    auto items = menuBarItems(machine, *frontmost, place.title == 0 ? std::string() : titles[place.title]);
    openStrip = place.strip;
    openTitle = place.title;
    openMenu = machine.menus.openBelow(frontmost->processIdentifier, place.box, std::move(items));
}

}  // namespace desk
