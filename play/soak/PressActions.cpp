// Single mouse events, with other things between a press and its release.
#include <string>

#include "desk/Machine.h"
#include "play/BarParts.h"
#include "play/Session.h"
#include "play/soak/Actions.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

using desk::MouseButton;

std::optional<platform::CGPoint> pointOnBar(const Chooser& choose, const std::string& window, const std::string& part) {
    const std::int64_t panel = panelNumber(choose.session, std::stoll(window));
    const auto inside = barPartPoint(choose.session, panel, part, choose.crumbTitle(window));
    const auto* shown = choose.session.machine.windows.find(panel);
    if (!inside || shown == nullptr) return std::nullopt;
    return platform::CGPoint{shown->frame.minX() + inside->x, shown->frame.maxY() - inside->y};
}

std::optional<platform::CGPoint> pointOnSomeBar(const Chooser& choose) {
    const auto window = choose.windowWithBar();
    return window ? pointOnBar(choose, *window, choose.partOfBar()) : std::nullopt;
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
    const auto point = choose.random.oneIn(2) ? pointOnSomeBar(choose) : pointOnWindow(choose);
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

Lines meanwhile(const Chooser& choose, const platform::CGPoint& point) {
    static constexpr const char* lines[] = {"wait 0.3", "key cmd+l", "activate com.apple.finder", "key escape"};
    const auto other = choose.windowWithBar();
    if (other && choose.random.oneIn(3)) return {"click right bar " + *other + " plate"};
    if (choose.random.oneIn(3)) return {"mouse down " + pointWords(point) + " right"};
    return {choose.random.pick(lines)};
}

// Held while something else happens, and released where it was pressed.
Lines holdCopy(const Chooser& choose) {
    const auto window = choose.windowWithBar();
    const auto point = window ? pointOnBar(choose, *window, "copy") : std::nullopt;
    if (!point || choose.session.machine.pointer.isPressed(MouseButton::left)) return {};
    Lines lines = meanwhile(choose, *point);
    lines.insert(lines.begin(), "mouse down " + pointWords(*point));
    lines.push_back("mouse up " + pointWords(*point));
    return lines;
}

Lines mouseMove(const Chooser& choose) {
    return {"mouse move " + choose.point()};
}

}  // namespace

const std::vector<Action>& pressActions() {
    static const std::vector<Action> table{{"mouse-down", 2, mouseDown},
                                           {"mouse-drag", 4, mouseDrag},
                                           {"mouse-up", 3, mouseUp},
                                           {"mouse-move", 0.5, mouseMove},
                                           {"hold-copy", 1, holdCopy}};
    return table;
}

}  // namespace play
