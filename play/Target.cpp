#include "play/Target.h"

#include <algorithm>
#include <cctype>
#include <iterator>

#include "desk/finder/FinderBrowser.h"
#include "desk/finder/FinderHit.h"
#include "desk/windows/WindowFrame.h"
#include "play/BarParts.h"
#include "play/Commands.h"
#include "play/OpenMenus.h"
#include "play/OrdinaryWindows.h"
#include "play/ScriptPlayer.h"

namespace play {

namespace {

using platform::CGPoint;
using platform::CGRect;

CGPoint middleOf(const CGRect& rect) {
    return {rect.midX(), rect.midY()};
}

const desk::ServerWindow& visibleWindow(ScriptPlayer& player, std::int64_t number) {
    const auto& windows = player.machine().windows;
    const desk::ServerWindow* window = windows.find(number);
    if (window == nullptr || !windows.isOnScreen(*window))
        missingTarget("window " + std::to_string(number) + " isn't on screen");
    return *window;
}

using PartTest = bool (*)(desk::FinderPart part);

bool isTitleBar(desk::FinderPart part) {
    return part == desk::FinderPart::titleBar;
}

// A press there neither selects nor opens nor deselects.
bool isStillContent(desk::FinderPart part) {
    return part == desk::FinderPart::status || part == desk::FinderPart::header || part == desk::FinderPart::sidebar;
}

// The point of that window nearest to the wanted one where the part is such a one. The wanted one itself when something else covers it, which is pressed then, or when there is none.
CGPoint nearestPoint(ScriptPlayer& player, const desk::ServerWindow& window, const CGPoint& wanted, PartTest isSuch) {
    auto& machine = player.machine();
    const desk::FinderWindow* folder = machine.finder.find(window.number);
    const auto isSeen = [&](const CGPoint& point) { return machine.windows.windowAt(point) == &window; };
    if (folder == nullptr || !isSeen(wanted)) return wanted;
    const views::LaidOutView shown = machine.finder.browser().parts(*folder);
    const platform::CGSize size = window.frame.size;
    const auto fits = [&](const CGPoint& point) {
        const CGPoint inside = desk::insideWindow(window.frame, point);
        return isSuch(desk::hitAt(shown, inside).part) && !desk::windowButtonAt(inside, size) &&
               !desk::windowEdgesAt(inside, size).any() && isSeen(point);
    };
    const double most = std::max(size.width, size.height);
    for (double distance = 0; distance < most; distance += 1)
        for (const CGPoint& way : {CGPoint{0, -1}, CGPoint{0, 1}, CGPoint{1, 0}, CGPoint{-1, 0}}) {
            const CGPoint point{wanted.x + way.x * distance, wanted.y + way.y * distance};
            if (fits(point)) return point;
        }
    return wanted;
}

// Finder's by number or `front`, an application's ordinary one by title.
std::int64_t namedWindow(ScriptPlayer& player, const Arguments& words) {
    const std::string& name = words.text(0);
    const bool isNumber = !name.empty() && name.find_first_not_of("0123456789") == std::string::npos;
    if (isNumber || name == "front") return player.finderWindow(words, 0);
    for (const desk::ServerWindow* shown : player.machine().windows.onScreen()) {
        if (shown->window == nullptr || !shown->window->canBecomeMain()) continue;
        if (shown->window->settings().title == name) return shown->number;
    }
    missingTarget("no window " + name);
}

// From the window's top left corner, y downward.
struct WindowPart {
    std::string_view name;
    CGPoint (*place)(platform::CGSize size);
    PartTest isSuch = nullptr;  // in a folder window
};
constexpr WindowPart windowParts[] = {
    {"titlebar",
     [](platform::CGSize size) {
         return CGPoint{size.width / 2, desk::windowTitleBarHeight / 2};
     },
     isTitleBar},
    {"content",
     [](platform::CGSize size) {
         return CGPoint{size.width / 2, (desk::windowTitleBarHeight + size.height) / 2};
     },
     isStillContent},
    {"close", [](platform::CGSize) { return desk::centerOf(desk::WindowButton::close); }},
    {"minimize", [](platform::CGSize) { return desk::centerOf(desk::WindowButton::minimize); }},
    {"zoom", [](platform::CGSize) { return desk::centerOf(desk::WindowButton::zoom); }},
    {"corner", [](platform::CGSize size) {
         return CGPoint{size.width - 1, size.height - 1};
     }}};

Target windowPart(ScriptPlayer& player, const Arguments& words) {
    const auto* part = std::find_if(std::begin(windowParts), std::end(windowParts),
                                    [&](const WindowPart& each) { return words.is(1, each.name); });
    if (part == std::end(windowParts)) badCommand("unknown part of a window: " + words.text(1));
    const desk::ServerWindow& window = visibleWindow(player, namedWindow(player, words));
    const CGPoint place = part->place(window.frame.size);
    const CGPoint point{window.frame.minX() + place.x, window.frame.maxY() - place.y};
    return {part->isSuch == nullptr ? point : nearestPoint(player, window, point, part->isSuch), 3};
}

Target barPart(ScriptPlayer& player, const Arguments& words) {
    const std::string& part = words.text(1);
    if (!isBarPart(part)) badCommand("unknown part of a bar: " + part);
    const bool isTitled = barPartHasTitle(part);
    const std::string title = isTitled ? words.text(2) : std::string();
    const std::int64_t window = player.finderWindow(words, 0);
    const std::int64_t panel = panelNumber(player.session(), window);
    if (panel == 0) missingTarget("window " + words.text(0) + " has no bar");
    const CGRect& bar = visibleWindow(player, panel).frame;
    const auto point = barPartPoint(player.session(), panel, part, title);
    if (!point) missingTarget("the bar shows no " + part + (isTitled ? " " + title : std::string()));
    return {{bar.minX() + point->x, bar.maxY() - point->y}, isTitled ? std::size_t{4} : std::size_t{3}};
}

Target labelled(ScriptPlayer& player, const Arguments& words) {
    const std::string& label = words.text(0);
    auto& machine = player.machine();
    if (const auto alert = machine.alertSurface.shown())
        if (const auto button = alert->buttonLabelled(label)) return {middleOf(*button), 2};
    if (const auto point = popoverControl(machine, label)) return {*point, 2};
    if (const auto point = controlLabelled(player.session(), label)) return {*point, 2};
    missingTarget("nothing is labelled " + label);
}

Target itemTitled(ScriptPlayer& player, const Arguments& words) {
    const std::string& title = words.text(0);
    auto& menus = player.machine().menus;
    const desk::OpenMenu* menu = menus.menu();
    if (menu == nullptr) missingTarget("no menu is open");
    const auto& items = menu->items();
    const auto isTitled = [&](const platform::MenuItem& item) { return !item.isSeparator && item.title == title; };
    const auto item = std::find_if(items.begin(), items.end(), isTitled);
    if (item == items.end()) missingTarget("the menu has no item " + title);
    const auto row = static_cast<std::size_t>(item - items.begin());
    menus.reveal(row);
    return {middleOf(menu->frameOf(row)), 2};
}

Target itemOfMenuBar(ScriptPlayer& player, const Arguments& /*words*/) {
    const desk::BarItem* item = player.session().statusItem();
    const auto frame = item == nullptr ? std::nullopt : player.machine().menuBar.frameOf(*item);
    if (!frame) missingTarget("no menu bar shows an item of the application");
    return {middleOf(*frame), 1};
}

struct TargetKind {
    std::string_view name;
    Target (*read)(ScriptPlayer& player, const Arguments& words);
};
constexpr TargetKind targetKinds[] = {{"window", windowPart},
                                      {"bar", barPart},
                                      {"label", labelled},
                                      {"item", itemTitled},
                                      {"status-item", itemOfMenuBar}};

}  // namespace

Target readTarget(ScriptPlayer& player, const Arguments& arguments) {
    for (const auto& kind : targetKinds)
        if (arguments.is(0, kind.name)) return kind.read(player, arguments.after(1));
    const std::string& first = arguments.text(0);
    if (!first.empty() && std::isalpha(static_cast<unsigned char>(first.front())) != 0)
        badCommand("unknown target: " + first);
    return {arguments.point(0), 2};
}

}  // namespace play
