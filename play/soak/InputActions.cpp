// What the user's hands do: clicks on every part of every bar, drags, keys, typing, and what one does with the about window.
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

std::string targetOnBar(const Chooser& choose, const std::string& window) {
    const std::string part = choose.partOfBar();
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
                                           {"status-item", 1.5, clickStatusItem},
                                           {"about-window", 2, useAbout},
                                           {"key", 5, key},
                                           {"type", 2, type},
                                           {"edit-path", 1, editPath}};
    return table;
}

}  // namespace play
