#include "overlay/FinderOverlayPanel.h"

#include "pathbar/PathBarMetrics.h"
#include "platform/Platform.h"
#include "tracking/OverlayMetrics.h"

namespace brindle {

using platform::CGPoint;
using platform::NSEvent;
using platform::NSEventType;

FinderOverlayPanel::FinderOverlayPanel(platform::Platform& thePlatform)
    : NSPanel(thePlatform, platform::CGRectMake(0, 0, 520, OverlayMetrics::barHeight),
              platform::NSWindowStyleMask::nonactivatingPanel, platform::NSBackingStoreType::buffered, false) {
    setReleasedWhenClosed(false);
    setHasShadow(false);
    setLevel(platform::NSNormalWindowLevel);
    setBackgroundColor(platform::Color::of(platform::ColorRole::clear));
    setOpaque(false);
    setHidesOnDeactivate(false);
    setIgnoresMouseEvents(false);
    setAcceptsMouseMovedEvents(true);
    setAnimationBehavior(platform::NSWindowAnimationBehavior::none);
    setCollectionBehavior(platform::NSWindowCollectionBehavior::ignoresCycle |
                          platform::NSWindowCollectionBehavior::fullScreenAuxiliary);
}

void FinderOverlayPanel::sendEvent(const NSEvent& event) {
    if (event.type == NSEventType::leftMouseDown && isInBrandRegion(event.locationInWindow)) {
        trackBrandDrag(event);
        return;
    }
    const bool isMouseDown = event.type == NSEventType::leftMouseDown || event.type == NSEventType::rightMouseDown;
    if (isMouseDown && onInteraction) onInteraction();
    NSPanel::sendEvent(event);
}

bool FinderOverlayPanel::isInBrandRegion(CGPoint locationInWindow) const {
    return locationInWindow.x >= 0 && locationInWindow.x <= PathBarMetrics::brandRegionLimit(frame().width());
}

void FinderOverlayPanel::trackBrandDrag(const NSEvent& startingWith) {
    const CGPoint start = screenPosition(startingWith);
    if (onInteraction) onInteraction();
    if (!onDragBegan || !onDragBegan(frame(), start)) return;
    if (onDragStateChanged) onDragStateChanged(true);

    constexpr platform::NSEventMask mask =
        platform::maskOf(NSEventType::leftMouseUp) | platform::maskOf(NSEventType::leftMouseDragged);
    const CGPoint origin = frame().origin;
    while (true) {
        const auto event = platform.application.nextEventMatchingMask(mask, platform::Date::distantFuture(),
                                                                      platform::NSRunLoopMode::eventTracking, true);
        if (!event || event->type == NSEventType::leftMouseUp) break;
        const CGPoint position = screenPosition(*event);
        setFrameOrigin({origin.x + (position.x - start.x), origin.y + (position.y - start.y)});
        if (onDragChanged) onDragChanged(position);
    }

    if (onDragEnded) onDragEnded();
    if (onDragStateChanged) onDragStateChanged(false);
}

CGPoint FinderOverlayPanel::screenPosition(const NSEvent& event) const {
    return event.window == nullptr ? platform.events.mouseLocation()
                                   : event.window->convertPointToScreen(event.locationInWindow);
}

}  // namespace brindle
