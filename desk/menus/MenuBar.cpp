#include "desk/menus/MenuBar.h"

#include "desk/Machine.h"
#include "desk/windows/WindowFrame.h"

namespace desk {

namespace {

using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;

constexpr double firstTitle = 32;
constexpr double padding = 10;          // on both sides of a title
constexpr double roomOnTheRight = 180;  // for clock and status items

}  // namespace

std::vector<MenuBarTitle> MenuBar::titles(const CGRect& strip) const {
    std::vector<MenuBarTitle> shown;
    const Process* frontmost = machine.processes.frontmost();
    if (frontmost == nullptr) return shown;
    double x = firstTitle;
    for (const std::string& text : menuBarMenus(machine, *frontmost)) {
        const platform::Font font = shown.empty() ? menuBarApplicationFont : menuBarFont;
        const double width = machine.text.width(text, font) + 2 * padding;
        if (x + width > strip.width() - roomOnTheRight) break;
        shown.push_back({text, CGRectMake(x, 0, width, strip.height()), isOpen(strip, text)});
        x += width;
    }
    return shown;
}

bool MenuBar::isOpen() const {
    return openMenu != 0 && machine.menus.isOpen(openMenu);
}

bool MenuBar::isOpen(const CGRect& strip, const std::string& title) const {
    return isOpen() && openStrip == strip && openTitle == title;
}

std::optional<MenuBar::Place> MenuBar::titleAt(const CGPoint& point) const {
    if (machine.windows.isFullScreenSpace()) return std::nullopt;
    for (const DisplayOptions& options : machine.displays.options()) {
        const CGRect strip = CGRectMake(options.frame.minX(), options.frame.maxY() - options.menuBar,
                                        options.frame.width(), options.menuBar);
        if (options.menuBar <= 0 || !platform::CGRectContainsPoint(strip, point)) continue;
        const auto shown = titles(strip);
        for (std::size_t i = 0; i < shown.size(); ++i)
            if (containsInside(shown[i].box, insideWindow(strip, point)))
                return Place{strip, i, shown[i].text, onScreen(strip, shown[i].box)};
    }
    return std::nullopt;
}

void MenuBar::mouseDown(const CGPoint& point) {
    if (const auto place = titleAt(point)) open(*place);
}

void MenuBar::mouseMoved(const CGPoint& point) {
    if (!isOpen()) return;
    const auto place = titleAt(point);
    if (place && !isOpen(place->strip, place->text)) open(*place);
}

void MenuBar::open(const Place& place) {
    const Process* frontmost = machine.processes.frontmost();
    if (frontmost == nullptr) return;
    auto items = menuBarItems(machine, *frontmost, place.title == 0 ? std::string() : place.text);
    openStrip = place.strip;
    openTitle = place.text;
    openMenu = machine.menus.openBelow(frontmost->processIdentifier, place.box, std::move(items));
}

}  // namespace desk
