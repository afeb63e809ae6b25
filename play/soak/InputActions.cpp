// What the user's hands do: clicks on every part of every bar, drags, keys, typing, and single mouse events with other things in between.
#include "desk/Machine.h"
#include "play/Session.h"
#include "play/soak/Actions.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

std::string partOfBar(const Chooser& choose, const std::string& window) {
    static constexpr const char* barParts[] = {"crumb", "crumb", "crumb", "chevron", "chevron", "ellipsis",
                                               "copy",  "brand", "empty", "empty",   "field",   "plate"};
    const std::string part = choose.random.pick(barParts);
    const bool isTitled = part == "crumb" || part == "chevron";
    return joinWords({"bar", window, part, isTitled ? textWord(choose.crumbTitle(window)) : std::string()});
}

Lines clickBar(const Chooser& choose) {
    static constexpr const char* buttons[] = {"", "", "", "right", "double"};
    const auto window = choose.windowWithBar();
    if (!window) return {};
    return {joinWords({"click", choose.random.pick(buttons), partOfBar(choose, *window)})};
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
    if (item.isSeparator) return {};
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

// Whatever else happens comes between it and the release.
Lines mouseDown(const Chooser& choose) {
    const auto& machine = choose.session.machine;
    if (machine.pointer.isPressed()) return {};
    const auto all = machine.windows.onScreen();
    if (all.empty()) return {};
    const platform::CGRect& frame = choose.random.pick(all)->frame;
    const double x = frame.minX() + choose.random.between(2, 60);
    const double y = frame.maxY() - choose.random.between(2, 40);
    return {"mouse down " + numberWord(x) + ' ' + numberWord(y) + (choose.random.oneIn(6) ? " right" : "")};
}

Lines mouseDrag(const Chooser& choose) {
    const desk::Pointer& pointer = choose.session.machine.pointer;
    if (!pointer.isPressed()) return {};
    const platform::CGPoint at = pointer.location;
    return {"mouse drag " + numberWord(at.x + choose.random.between(-80, 80)) + ' ' +
            numberWord(at.y + choose.random.between(-80, 80))};
}

Lines mouseUp(const Chooser& choose) {
    const desk::Pointer& pointer = choose.session.machine.pointer;
    if (!pointer.isPressed()) return {};
    return {"mouse up " + numberWord(pointer.location.x) + ' ' + numberWord(pointer.location.y) +
            (pointer.isPressed(desk::MouseButton::left) ? "" : " right")};
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
                                           {"mouse-move", 0.5, mouseMove},
                                           {"key", 5, key},
                                           {"type", 2, type},
                                           {"edit-path", 1, editPath}};
    return table;
}

}  // namespace play
