#include "desk/menus/MenuBar.h"

#include <algorithm>
#include <utility>

#include "desk/finder/FinderWords.h"
#include "desk/menus/MenuLayer.h"
#include "desk/processes/Processes.h"
#include "desk/time/WallClock.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowFrame.h"
#include "desk/windows/WindowKeeper.h"
#include "desk/windows/WindowStack.h"

namespace desk {

namespace {

using platform::CGPoint;
using platform::CGRect;

std::vector<std::string> titlesOf(const Processes& processes, const Process& frontmost) {
    std::vector<std::string> titles = processes.keeperOf(frontmost.processIdentifier).menus();
    titles.insert(titles.begin(), frontmost.name);
    return titles;
}

// What stands furthest from the edges goes: titles first, the last of them first of all.
bool dropOne(MenuBarContent& content) {
    if (!content.titles.empty())
        content.titles.pop_back();
    else if (!content.items.empty())
        content.items.pop_back();
    else
        return false;
    return true;
}

}  // namespace

views::LaidOutView MenuBar::shown(const CGRect& strip) const {
    MenuBarContent content;
    if (const Process* frontmost = processes.frontmost()) content.titles = titlesOf(processes, *frontmost);
    for (const auto& item : added) content.items.push_back(item->image);
    content.clock = clockText(clock.now());
    if (isOpen() && pressed.strip == strip) content.open = pressed.id;
    const auto view = [&] { return menuBarView(content, strip.height(), {appearance.colorScheme.get()}); };
    while (views::idealSize(view(), text).width > strip.width() && dropOne(content)) {}
    return {view(), strip.size, text};
}

std::vector<CGRect> MenuBar::strips() const {
    std::vector<CGRect> all;
    if (windows.isFullScreenSpace()) return all;
    for (const DisplayOptions& options : displays.options())
        if (options.menuBar > 0) all.push_back(options.menuBarStrip());
    return all;
}

bool MenuBar::isOpen() const {
    return openMenu != 0 && menus.isOpen(openMenu);
}

std::optional<MenuBar::Place> MenuBar::placeAt(const CGPoint& point) const {
    for (const CGRect& strip : strips()) {
        if (!platform::CGRectContainsPoint(strip, point)) continue;
        const views::LaidOutView bar = shown(strip);
        if (const std::string* id = bar.idAt(insideLaidOut(strip, point)))
            return Place{strip, *id, onScreen(strip, *bar.frameOf(*id))};
    }
    return std::nullopt;
}

std::vector<MenuBar::Place> MenuBar::placesOf(const BarItem& item) const {
    const auto found = std::find_if(added.begin(), added.end(), [&](const auto& each) { return each.get() == &item; });
    const std::string id = itemId(static_cast<std::size_t>(found - added.begin()));
    std::vector<Place> places;
    for (const CGRect& strip : strips())
        if (const auto box = shown(strip).frameOf(id)) places.push_back({strip, id, onScreen(strip, *box)});
    return places;
}

std::optional<CGRect> MenuBar::frameOf(const BarItem& item) const {
    const auto places = placesOf(item);
    return places.empty() ? std::nullopt : std::optional(places.front().box);
}

const BarItem* MenuBar::itemAt(const Place& place) const {
    for (std::size_t i = 0; i < added.size(); ++i)
        if (place.id == itemId(i)) return added[i].get();
    return nullptr;
}

void MenuBar::add(const std::shared_ptr<BarItem>& item) {
    added.push_back(item);
    windows.changed();
}

void MenuBar::remove(const BarItem& item) {
    if (std::erase_if(added, [&](const auto& each) { return each.get() == &item; }) > 0) windows.changed();
}

void MenuBar::applicationEnded(std::int32_t owner) {
    if (std::erase_if(added, [owner](const auto& each) { return each->owner == owner; }) > 0) windows.changed();
}

bool MenuBar::covers(const CGPoint& point) const {
    const auto all = strips();
    return std::any_of(all.begin(), all.end(), [&](const CGRect& each) { return CGRectContainsPoint(each, point); });
}

std::optional<std::int32_t> MenuBar::take(const platform::NSEvent& event) {
    if (platform::isKeyEvent(event.type) || !covers(event.locationInWindow)) return std::nullopt;
    const auto place = placeAt(event.locationInWindow);
    const BarItem* item = place ? itemAt(*place) : nullptr;
    const std::int32_t owner = item == nullptr ? 0 : item->owner;
    if (event.type == platform::NSEventType::leftMouseDown && place) open(*place);
    return owner;
}

void MenuBar::mouseIsAt(const CGPoint& point) {
    if (!isOpen()) return;
    const auto place = placeAt(point);
    if (place && !pressed.isIn(place->strip, place->id)) open(*place);
}

void MenuBar::open(const Place& place) {
    pressed = place;
    if (const BarItem* item = itemAt(place)) return item->pressed();
    const Process* frontmost = processes.frontmost();
    if (frontmost == nullptr) return;
    const std::int32_t owner = frontmost->processIdentifier;
    const std::vector<std::string> titles = titlesOf(processes, *frontmost);
    for (std::size_t i = 0; i < titles.size(); ++i)
        if (place.id == titleId(i))
            openMenu = menus.openBelow(owner, place.box,
                                       processes.keeperOf(owner).menuItems(owner, i == 0 ? std::string() : titles[i]));
}

std::uint64_t MenuBar::openMenuOf(const BarItem& item, std::vector<platform::MenuItem> entries) {
    const auto places = placesOf(item);
    const auto same = std::find_if(places.begin(), places.end(),
                                   [this](const Place& each) { return pressed.isIn(each.strip, each.id); });
    if (places.empty()) entries.clear();
    pressed = places.empty() ? Place{} : same == places.end() ? places.front() : *same;
    openMenu = menus.openBelow(item.owner, pressed.box, std::move(entries));
    return openMenu;
}

}  // namespace desk
