#include "desk/finder/FinderMouse.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/finder/Finder.h"
#include "desk/finder/FinderBrowser.h"
#include "desk/processes/Activation.h"
#include "desk/windows/WindowStack.h"

namespace desk {

using platform::CGPoint;
using platform::CGRect;

namespace {

namespace Flags = platform::NSEventModifierFlags;

constexpr platform::CGSize leastSize{320, 200};
constexpr double stillHand = 4;  // a hand that clicks moves the mouse as far as this

CGPoint gripOf(const ServerWindow& shown, const CGPoint& mouse) {
    return {shown.frame.origin.x - mouse.x, shown.frame.origin.y - mouse.y};
}

}  // namespace

void FinderMouse::mouseDown(std::int64_t number, const MousePress& press) {
    held.reset();
    if (finder.find(number) == nullptr) return;
    bringForward(number);
    if (const ServerWindow* shown = neighbours.windows.find(number)) graspFrame(*shown, press);
}

void FinderMouse::bringForward(std::int64_t number) {
    // Raised before the activation too, so that this is the window which the activation finds in front.
    neighbours.windows.raise(number);
    if (!finder.isFrontmost()) {
        neighbours.activation.activate(finder.pid(), false);
        neighbours.windows.raise(number);
    }
    finder.mainWindowMayHaveChanged();
}

// Every window's own parts come first: a button, an edge, the title bar.
void FinderMouse::graspFrame(const ServerWindow& shown, const MousePress& press) {
    const FinderWindow* window = finder.find(shown.number);
    if (window == nullptr) return;
    const CGPoint point = insideWindow(shown.frame, press.point);
    const WindowEdges edges = window->fullScreen ? WindowEdges{} : windowEdgesAt(point, shown.frame.size);
    const auto hold = [&](auto grasp) { held = Hold{shown.number, press.point, grasp}; };
    if (const auto button = windowButtonAt(point, shown.frame.size)) return hold(*button);
    if (edges.any()) return hold(Resize{edges, shown.frame});
    if (window->kind == FinderWindowKind::folder) return graspContent(shown, *window, press);
    if (point.y <= windowTitleBarHeight) hold(Move{gripOf(shown, press.point)});
}

void FinderMouse::graspContent(const ServerWindow& shown, const FinderWindow& window, const MousePress& press) {
    const CGPoint point = insideWindow(shown.frame, press.point);
    const FinderLayout layout = finder.browser().layout(window);
    const FinderHit hit = layout.hit(point);
    const auto hold = [&](auto grasp) { held = Hold{shown.number, press.point, grasp}; };
    switch (hit.part) {
    case FinderPart::titleBar:
        if (window.fullScreen) break;
        if (press.isSecondOfDouble())
            finder.zoom(shown.number);
        else
            hold(Move{gripOf(shown, press.point)});
        break;
    case FinderPart::back:
    case FinderPart::forward:
    case FinderPart::place:
        hold(hit);
        break;
    case FinderPart::row:
        pressRow(shown.number, hit.index, press);
        break;
    case FinderPart::emptyList:
        pressBelowRows(window, press, layout.inWholeList(point));
        break;
    case FinderPart::scroller:
        pressScroller(window, press, point.y);
        break;
    case FinderPart::sidebar:
    case FinderPart::header:
    case FinderPart::status:
        break;
    }
}

void FinderMouse::pressRow(std::int64_t number, std::size_t row, const MousePress& press) {
    FinderBrowser& browser = finder.browser();
    if ((press.modifiers & Flags::command) != 0)
        browser.toggleRow(number, row);
    else if ((press.modifiers & Flags::shift) != 0)
        browser.selectRow(number, row, Selecting::extending);
    else if (press.isSecondOfDouble())
        browser.openSelection(number);
    else
        browser.selectRow(number, row, Selecting::alone);
}

void FinderMouse::pressBelowRows(const FinderWindow& window, const MousePress& press, const CGPoint& inWholeList) {
    const bool keeps = (press.modifiers & (Flags::command | Flags::shift)) != 0;
    held = Hold{window.number, press.point, Band{inWholeList, keeps ? window.selection : std::vector<std::string>{}}};
    if (!keeps) finder.browser().selectNothing(window.number);
}

void FinderMouse::openBand(const ServerWindow& shown, const Band& band, const CGPoint& point) {
    const FinderWindow* window = finder.find(shown.number);
    if (window == nullptr) return;
    FinderBrowser& browser = finder.browser();
    const CGPoint to = browser.layout(*window).inWholeList(insideWindow(shown.frame, point));
    const CGPoint origin{std::min(band.from.x, to.x), std::min(band.from.y, to.y)};
    browser.openBand(shown.number, {origin, {std::abs(to.x - band.from.x), std::abs(to.y - band.from.y)}}, band.kept);
}

void FinderMouse::pressScroller(const FinderWindow& window, const MousePress& press, double y) {
    FinderBrowser& browser = finder.browser();
    const FinderLayout layout = browser.layout(window);
    const CGRect knob = layout.knob().value_or(CGRect{});
    if (y <= knob.minY())
        browser.scrollBy(window.number, -layout.list().height());
    else if (y > knob.maxY())
        browser.scrollBy(window.number, layout.list().height());
    else
        held = Hold{window.number, press.point, Scroll{layout.scrolled()}};
}

void FinderMouse::scrollAlong(const Scroll& scroll, const CGPoint& point) {
    const FinderWindow* window = finder.find(held->window);
    if (window == nullptr) return;
    FinderBrowser& browser = finder.browser();
    const double moved = browser.layout(*window).scrolledByKnob(held->point.y - point.y);
    browser.scrollTo(held->window, scroll.scrolled + moved);
}

// All of the title bar moves the window, also where something stands in it that a click would press.
void FinderMouse::dragTitleBarInstead(const ServerWindow& shown, const CGPoint& point) {
    const FinderWindow* window = finder.find(shown.number);
    const bool isPressed =
        std::holds_alternative<WindowButton>(held->grasp) || std::holds_alternative<FinderHit>(held->grasp);
    const bool isInTitleBar = insideWindow(shown.frame, held->point).y <= windowTitleBarHeight;
    const bool hasMoved = std::hypot(point.x - held->point.x, point.y - held->point.y) > stillHand;
    if (window != nullptr && !window->fullScreen && isPressed && isInTitleBar && hasMoved)
        held->grasp = Move{gripOf(shown, held->point)};
}

void FinderMouse::mouseDragged(const CGPoint& point) {
    if (!held) return;
    const ServerWindow* shown = neighbours.windows.find(held->window);
    if (shown == nullptr) return held.reset();
    dragTitleBarInstead(*shown, point);
    CGRect frame = shown->frame;
    if (const auto* band = std::get_if<Band>(&held->grasp)) return openBand(*shown, *band, point);
    if (const auto* scroll = std::get_if<Scroll>(&held->grasp)) return scrollAlong(*scroll, point);
    if (const auto* move = std::get_if<Move>(&held->grasp))
        frame.origin = {point.x + move->grip.x, point.y + move->grip.y};
    else if (const auto* resize = std::get_if<Resize>(&held->grasp))
        frame =
            resizedFrame(resize->frame, resize->edges, {point.x - held->point.x, point.y - held->point.y}, leastSize);
    else
        return;
    if (!finder.setFrame(held->window, frame)) held.reset();
}

void FinderMouse::mouseUp(const CGPoint& point) {
    mouseDragged(point);
    const std::optional<Hold> released = std::exchange(held, std::nullopt);
    const ServerWindow* shown = released ? neighbours.windows.find(released->window) : nullptr;
    if (shown == nullptr) return;
    const CGPoint inside = insideWindow(shown->frame, point);
    if (const auto* button = std::get_if<WindowButton>(&released->grasp)) {
        if (windowButtonAt(inside, shown->frame.size) == *button) act(*shown, *button);
    } else if (std::holds_alternative<Band>(released->grasp)) {
        finder.browser().closeBand(released->window);
    } else if (const auto* hit = std::get_if<FinderHit>(&released->grasp)) {
        const FinderWindow* window = finder.find(shown->number);
        if (window != nullptr && finder.browser().layout(*window).hit(inside) == *hit) act(shown->number, *hit);
    }
}

void FinderMouse::act(const ServerWindow& shown, WindowButton button) {
    const FinderWindow* window = finder.find(shown.number);
    if (window == nullptr) return;
    switch (button) {
    case WindowButton::close:
        finder.close(shown.number);
        break;
    case WindowButton::minimize:
        finder.minimize(shown.number);
        break;
    case WindowButton::zoom:
        finder.setFullScreen(shown.number, !window->fullScreen);
        break;
    }
}

void FinderMouse::act(std::int64_t number, const FinderHit& hit) {
    FinderBrowser& browser = finder.browser();
    if (hit.part == FinderPart::back)
        browser.goBack(number);
    else if (hit.part == FinderPart::forward)
        browser.goForward(number);
    else
        browser.goTo(number, FinderPlace(browser.places()[hit.index]));
}

void FinderMouse::scrollWheel(std::int64_t number, double deltaY) {
    finder.browser().scrollBy(number, -deltaY);
}

CursorShape FinderMouse::cursorAt(std::int64_t number, const CGPoint& point) const {
    const ServerWindow* shown = neighbours.windows.find(number);
    const FinderWindow* window = finder.find(number);
    if (shown == nullptr || window == nullptr) return CursorShape::arrow;
    if (const auto* resize = held ? std::get_if<Resize>(&held->grasp) : nullptr) return cursorFor(resize->edges);
    if (window->fullScreen) return CursorShape::arrow;
    return cursorFor(windowEdgesAt(insideWindow(shown->frame, point), shown->frame.size));
}

}  // namespace desk
