#include "desk/finder/FinderMouse.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/finder/Finder.h"
#include "desk/finder/FinderBrowser.h"
#include "desk/windows/WindowFrame.h"
#include "desk/windows/WindowKeeper.h"
#include "desk/windows/WindowStack.h"

namespace desk {

using platform::CGPoint;
using platform::CGRect;
using platform::NSEvent;
using platform::NSEventType;

namespace {

namespace Flags = platform::NSEventModifierFlags;

}  // namespace

void FinderMouse::handle(std::int64_t window, const NSEvent& event) {
    struct Entry {
        NSEventType type;
        void (FinderMouse::*handler)(std::int64_t window, const NSEvent& event);
    };
    static constexpr Entry handlers[] = {{NSEventType::leftMouseDown, &FinderMouse::mouseDown},
                                         {NSEventType::leftMouseDragged, &FinderMouse::mouseDragged},
                                         {NSEventType::leftMouseUp, &FinderMouse::mouseUp},
                                         {NSEventType::scrollWheel, &FinderMouse::scrollWheel}};
    for (const Entry& entry : handlers)
        if (entry.type == event.type) (this->*entry.handler)(window, event);
}

void FinderMouse::mouseDown(std::int64_t number, const NSEvent& press) {
    struct Entry {
        FinderPart part;
        void (FinderMouse::*handler)(const FinderWindow& window, const NSEvent& press, const FinderHit& hit);
    };
    static constexpr Entry handlers[] = {
        {FinderPart::back, &FinderMouse::pressButton},         {FinderPart::forward, &FinderMouse::pressButton},
        {FinderPart::place, &FinderMouse::pressButton},        {FinderPart::row, &FinderMouse::pressRow},
        {FinderPart::emptyList, &FinderMouse::pressBelowRows}, {FinderPart::scroller, &FinderMouse::pressScroller}};
    held.reset();
    const FinderWindow* window = finder.find(number);
    if (window == nullptr || window->kind != FinderWindowKind::folder) return;
    const FinderHit hit = hitAt(finder.browser().parts(*window), inside(number, press.locationInWindow));
    for (const Entry& entry : handlers)
        if (entry.part == hit.part) return (this->*entry.handler)(*window, press, hit);
}

CGPoint FinderMouse::inside(std::int64_t number, const CGPoint& point) const {
    return insideWindow(neighbours.windows.find(number)->frame, point);
}

void FinderMouse::pressButton(const FinderWindow& window, const NSEvent& press, const FinderHit& hit) {
    held = Hold{window.number, press.locationInWindow, hit};
}

void FinderMouse::pressRow(const FinderWindow& window, const NSEvent& press, const FinderHit& hit) {
    FinderBrowser& browser = finder.browser();
    if ((press.modifierFlags & Flags::command) != 0)
        browser.toggleRow(window.number, hit.index);
    else if ((press.modifierFlags & Flags::shift) != 0)
        browser.selectRow(window.number, hit.index, Selecting::extending);
    else if (isSecondOfDouble(press))
        browser.openSelection(window.number);
    else
        browser.selectRow(window.number, hit.index, Selecting::alone);
}

void FinderMouse::pressBelowRows(const FinderWindow& window, const NSEvent& press, const FinderHit& /*hit*/) {
    const bool keeps = (press.modifierFlags & (Flags::command | Flags::shift)) != 0;
    const CGPoint from = finder.browser().layout(window).inWholeList(inside(window.number, press.locationInWindow));
    held =
        Hold{window.number, press.locationInWindow, Band{from, keeps ? window.selection : std::vector<std::string>{}}};
    if (!keeps) finder.browser().selectNothing(window.number);
}

void FinderMouse::openBand(const FinderWindow& window, const Band& band, const CGPoint& point) {
    FinderBrowser& browser = finder.browser();
    const CGPoint to = browser.layout(window).inWholeList(inside(window.number, point));
    const CGPoint origin{std::min(band.from.x, to.x), std::min(band.from.y, to.y)};
    browser.openBand(window.number, {origin, {std::abs(to.x - band.from.x), std::abs(to.y - band.from.y)}}, band.kept);
}

void FinderMouse::pressScroller(const FinderWindow& window, const NSEvent& press, const FinderHit& /*hit*/) {
    FinderBrowser& browser = finder.browser();
    const double y = inside(window.number, press.locationInWindow).y;
    const FinderLayout layout = browser.layout(window);
    const CGRect knob = layout.knob().value_or(CGRect{});
    if (y <= knob.minY())
        browser.scrollBy(window.number, -layout.list().height());
    else if (y > knob.maxY())
        browser.scrollBy(window.number, layout.list().height());
    else
        held = Hold{window.number, press.locationInWindow, Scroll{layout.scrolled()}};
}

void FinderMouse::scrollAlong(const FinderWindow& window, const Scroll& scroll, const CGPoint& point) {
    FinderBrowser& browser = finder.browser();
    const double moved = browser.layout(window).scrolledByKnob(held->point.y - point.y);
    browser.scrollTo(window.number, scroll.scrolled + moved);
}

void FinderMouse::mouseDragged(std::int64_t /*number*/, const NSEvent& event) {
    const FinderWindow* window = held ? finder.find(held->window) : nullptr;
    if (window == nullptr) return held.reset();
    if (const auto* band = std::get_if<Band>(&held->grasp)) openBand(*window, *band, event.locationInWindow);
    if (const auto* scroll = std::get_if<Scroll>(&held->grasp)) scrollAlong(*window, *scroll, event.locationInWindow);
}

void FinderMouse::mouseUp(std::int64_t number, const NSEvent& event) {
    mouseDragged(number, event);
    const std::optional<Hold> released = std::exchange(held, std::nullopt);
    const FinderWindow* window = released ? finder.find(released->window) : nullptr;
    if (window == nullptr) return;
    if (std::holds_alternative<Band>(released->grasp)) return finder.browser().closeBand(window->number);
    const auto* hit = std::get_if<FinderHit>(&released->grasp);
    if (hit == nullptr) return;
    const CGPoint point = inside(window->number, event.locationInWindow);
    if (hitAt(finder.browser().parts(*window), point) == *hit) act(window->number, *hit);
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

void FinderMouse::scrollWheel(std::int64_t number, const NSEvent& event) {
    finder.browser().scrollBy(number, -event.scrollingDeltaY);
}

}  // namespace desk
