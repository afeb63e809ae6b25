// What the user's hands do: clicks on every part of every bar, drags, keys, typing, and single mouse events with other things in between.
#include <string>

#include "desk/Machine.h"
#include "play/BarParts.h"
#include "play/OrdinaryWindows.h"
#include "play/Session.h"
#include "play/soak/Actions.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

constexpr const char* aboutTitle = "About Orvane";

std::string partOfBar(const Chooser& choose) {
    static constexpr const char* barParts[] = {"crumb", "crumb", "crumb", "chevron", "chevron", "ellipsis",
                                               "copy",  "brand", "empty", "empty",   "field",   "plate"};
    return choose.random.pick(barParts);
}

std::string targetOnBar(const Chooser& choose, const std::string& window) {
    const std::string part = partOfBar(choose);
    return joinWords(
        {"bar", window, part, barPartHasTitle(part) ? textWord(choose.crumbTitle(window)) : std::string()});
}

Lines clickBar(const Chooser& choose) {
    static constexpr const char* buttons[] = {"", "", "", "right", "double"};
    const auto window = choose.windowWithBar();
    if (!window) return {};
    return {joinWords({"click", choose.random.pick(buttons), targetOnBar(choose, *window)})};
}

Lines clickWindow(const Chooser& choose) {
    static constexpr const char* buttons[] = {"", "", "right", "double"};
    const auto window = choose.folderWindow();
    if (!window) return {};
    return {joinWords(
        {"click", choose.random.pick(buttons), "window", *window, choose.random.oneIn(2) ? "titlebar" : "content"})};
}

Lines clickAnywhere(const Chooser& choose) {
    return {joinWords({"click", choose.random.oneIn(4) ? "right" : "", choose.point()})};
}

Lines clickMenuItem(const Chooser& choose) {
    const auto* menu = choose.session.machine.menus.menu();
    if (menu == nullptr || menu->items().empty()) return {};
    const auto& item = choose.random.pick(menu->items());
    // Stories end with the application.
    if (item.isSeparator || item.title == "Quit Orvane") return {};
    return {"click item " + textWord(item.title)};
}

std::string way(const Chooser& choose) {
    const int farthest = choose.random.oneIn(3) ? 500 : 60;
    return numberWord(choose.random.between(-farthest, farthest)) + ' ' +
           numberWord(choose.random.between(-farthest, farthest));
}

std::string pace(const Chooser& choose) {
    static constexpr const char* paces[] = {"",         "steps 1",         "steps 3", "steps 5 over 0.1",
                                            "over 0.2", "steps 4 over 1.2"};
    return choose.random.pick(paces);
}

Lines dragTitleBar(const Chooser& choose) {
    const auto window = choose.folderWindow();
    if (!window) return {};
    return {joinWords({"drag window", *window, "titlebar by", way(choose), pace(choose)})};
}

Lines dragBrand(const Chooser& choose) {
    const auto window = choose.windowWithBar();
    if (!window) return {};
    return {joinWords({"drag bar", *window, "brand by", way(choose), pace(choose)})};
}

using desk::MouseButton;

std::optional<platform::CGPoint> pointOnBar(const Chooser& choose) {
    const auto window = choose.windowWithBar();
    if (!window) return std::nullopt;
    const std::string part = partOfBar(choose);
    const std::int64_t panel = panelNumber(choose.session, std::stoll(*window));
    const auto inside = barPartPoint(choose.session, panel, part, choose.crumbTitle(*window));
    const auto* shown = choose.session.machine.windows.find(panel);
    if (!inside || shown == nullptr) return std::nullopt;
    return platform::CGPoint{shown->frame.minX() + inside->x, shown->frame.maxY() - inside->y};
}

// Near a corner that has the buttons of a window or the brand label of a bar.
std::optional<platform::CGPoint> pointOnWindow(const Chooser& choose) {
    const auto all = choose.session.machine.windows.onScreen();
    if (all.empty()) return std::nullopt;
    const platform::CGRect& frame = choose.random.pick(all)->frame;
    return platform::CGPoint{frame.minX() + choose.random.between(2, 60), frame.maxY() - choose.random.between(2, 40)};
}

std::string pointWords(const platform::CGPoint& point) {
    return numberWord(point.x) + ' ' + numberWord(point.y);
}

// Whatever else happens comes between it and the release, presses of the other button too.
Lines mouseDown(const Chooser& choose) {
    const desk::Pointer& pointer = choose.session.machine.pointer;
    const bool isRight = pointer.isPressed(MouseButton::left) || (!pointer.isPressed() && choose.random.oneIn(6));
    if (pointer.isPressed(isRight ? MouseButton::right : MouseButton::left)) return {};
    const auto point = choose.random.oneIn(2) ? pointOnBar(choose) : pointOnWindow(choose);
    if (!point) return {};
    return {"mouse down " + pointWords(*point) + (isRight ? " right" : "")};
}

Lines mouseDrag(const Chooser& choose) {
    const desk::Pointer& pointer = choose.session.machine.pointer;
    if (!pointer.isPressed()) return {};
    const platform::CGPoint at = pointer.location;
    return {"mouse drag " + pointWords({at.x + choose.random.between(-80, 80), at.y + choose.random.between(-80, 80)})};
}

Lines mouseUp(const Chooser& choose) {
    const desk::Pointer& pointer = choose.session.machine.pointer;
    if (!pointer.isPressed()) return {};
    const bool isRight =
        !pointer.isPressed(MouseButton::left) || (pointer.isPressed(MouseButton::right) && choose.random.oneIn(2));
    return {"mouse up " + pointWords(pointer.location) + (isRight ? " right" : "")};
}

Lines clickStatusItem(const Chooser& choose) {
    if (choose.session.statusItem() == nullptr) return {};
    return {"click status-item"};
}

Lines useAbout(const Chooser& choose) {
    static constexpr const char* parts[] = {"titlebar", "content", "minimize", "zoom", "close"};
    const auto* about = ordinaryWindow(choose.session, aboutTitle);
    if (about == nullptr) return {};
    const std::string window = joinWords({"window", textWord(aboutTitle)});
    if (choose.random.oneIn(3)) return {joinWords({"drag", window, "titlebar by", way(choose), pace(choose)})};
    if (about->isKeyWindow() && choose.random.oneIn(3)) return {"key cmd+w"};
    return {joinWords({"click", window, choose.random.pick(parts)})};
}

Lines mouseMove(const Chooser& choose) {
    return {"mouse move " + choose.point()};
}

Lines key(const Chooser& choose) {
    static constexpr const char* keys[] = {"cmd+l",    "cmd+l", "return",         "return", "escape",  "left",
                                           "right",    "up",    "down",           "home",   "end",     "shift+left",
                                           "cmd+a",    "cmd+c", "cmd+v",          "cmd+z",  "cmd+x",   "delete",
                                           "alt+left", "tab",   "forward-delete", "a",      "shift+a", "space"};
    return {std::string("key ") + choose.random.pick(keys)};
}

Lines type(const Chooser& choose) {
    static constexpr const char* texts[] = {"x", "/", "~/Documents", "/Users/ana/nothing here", "é🍋", "  "};
    return {"type " + textWord(choose.random.oneIn(3) ? choose.folder() : choose.random.pick(texts))};
}

Lines editPath(const Chooser& choose) {
    return {"key cmd+l", "type " + textWord(choose.folder()), "key return"};
}

}  // namespace

const std::vector<Action>& inputActions() {
    static const std::vector<Action> table{{"click-bar", 10, clickBar},
                                           {"click-window", 4, clickWindow},
                                           {"click-anywhere", 2, clickAnywhere},
                                           {"click-item", 6, clickMenuItem},
                                           {"drag-title-bar", 3, dragTitleBar},
                                           {"drag-brand", 3, dragBrand},
                                           {"mouse-down", 2, mouseDown},
                                           {"mouse-drag", 4, mouseDrag},
                                           {"mouse-up", 3, mouseUp},
                                           {"status-item", 1.5, clickStatusItem},
                                           {"about-window", 2, useAbout},
                                           {"mouse-move", 0.5, mouseMove},
                                           {"key", 5, key},
                                           {"type", 2, type},
                                           {"edit-path", 1, editPath}};
    return table;
}

}  // namespace play
