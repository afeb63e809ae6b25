#include "overlay/FinderWindowInteractionService.h"

#include <algorithm>
#include <vector>

#include "tracking/AccessibilityReader.h"
#include "tracking/CoordinateSpaceConverter.h"
#include "tracking/RectangleMatching.h"

namespace brindle {

using platform::AXUIElement;
using platform::CGPoint;
using platform::CGRect;

namespace {

// A window as far as this from where it should be, in all four numbers together, is taken for another one.
constexpr double tooFar = 40.0;

// In top-left space; empty for what is no window on screen.
std::optional<CGRect> windowFrame(const AccessibilityReader& reader, const AXUIElement& element) {
    if (reader.copyString("AXRole", element) != "AXWindow") return std::nullopt;
    if (reader.copyBool("AXMinimized", element).value_or(false)) return std::nullopt;
    return reader.copyFrame(element);
}

}  // namespace

void FinderWindowInteractionService::raise(const FinderWindowState& window) {
    if (const auto found = target(window, std::nullopt)) activate(found->element, found->application, found->finder);
}

bool FinderWindowInteractionService::beginDrag(const FinderWindowState& window, const CGRect& panelFrame,
                                               CGPoint mousePosition) {
    dragSession.reset();
    if (window.isFullScreen) {
        raise(window);
        return false;
    }
    const auto found = target(window, panelFrame);
    if (!found) return false;
    const auto position = AccessibilityReader(platform.accessibility).copyPoint("AXPosition", found->element);
    if (!position) return false;
    dragSession = DragSession{found->application, found->finder, found->element, *position, mousePosition};
    return true;
}

// The mouse's y grows upward, the window's downward.
void FinderWindowInteractionService::updateDrag(CGPoint mousePosition) {
    if (!dragSession) return;
    const CGPoint& start = dragSession->initialWindowPosition;
    const CGPoint& mouseStart = dragSession->initialMousePosition;
    const auto position = platform::AXValueCreate(
        CGPoint{start.x + (mousePosition.x - mouseStart.x), start.y - (mousePosition.y - mouseStart.y)});
    if (!position) return;
    platform.accessibility.AXUIElementSetAttributeValue(dragSession->element, "AXPosition", *position);
}

void FinderWindowInteractionService::endDrag() {
    if (!dragSession) return;
    const DragSession ended = *dragSession;
    dragSession.reset();
    activate(ended.element, ended.application, ended.finder);
}

std::optional<FinderWindowInteractionService::Target> FinderWindowInteractionService::target(
    const FinderWindowState& state, const std::optional<CGRect>& panelFrame) {
    const auto running = platform.workspace.runningApplications();
    const auto finder = std::find_if(running.begin(), running.end(), [](const platform::NSRunningApplication& each) {
        return each.bundleIdentifier == "com.apple.finder";
    });
    if (finder == running.end()) return std::nullopt;
    const AXUIElement application = platform.accessibility.AXUIElementCreateApplication(finder->processIdentifier);
    const auto element = matchingWindowElement(state, panelFrame, application);
    return element ? std::optional(Target{application, *finder, *element}) : std::nullopt;
}

std::optional<AXUIElement> FinderWindowInteractionService::matchingWindowElement(
    const FinderWindowState& state, const std::optional<CGRect>& panelFrame, const AXUIElement& application) {
    const AccessibilityReader reader(platform.accessibility);
    const auto elements = reader.copyElements("AXWindows", application);
    if (!elements) return std::nullopt;
    const auto primaryScreen = CoordinateSpaceConverter::anchorFrame(platform.screens);
    if (!primaryScreen) return std::nullopt;
    const double left = panelFrame ? panelFrame->minX() : state.frame.minX();
    const double top = panelFrame ? panelFrame->minY() : state.frame.maxY();
    const CGRect expected{{left, primaryScreen->maxY() - top}, state.frame.size};

    std::optional<AXUIElement> nearest;
    double smallest = tooFar;
    for (const AXUIElement& element : *elements) {
        const auto frame = windowFrame(reader, element);
        if (!frame || !(frameDistance(*frame, expected) < smallest)) continue;
        smallest = frameDistance(*frame, expected);
        nearest = element;
    }
    return nearest;
}

void FinderWindowInteractionService::focusAndRaise(const AXUIElement& element, const AXUIElement& application) {
    platform::Accessibility& accessibility = platform.accessibility;
    accessibility.AXUIElementSetAttributeValue(application, "AXFocusedWindow", element);
    accessibility.AXUIElementSetAttributeValue(element, "AXMain", true);
    accessibility.AXUIElementSetAttributeValue(element, "AXFocused", true);
    accessibility.AXUIElementPerformAction(element, "AXRaise");
}

// Activating Finder brings forward the window that was its main one when it handles the activation, which may be the
// old one.
void FinderWindowInteractionService::activate(const AXUIElement& element, const AXUIElement& application,
                                              const platform::NSRunningApplication& finder) {
    focusAndRaise(element, application);
    finder.activateWithOptions(platform::NSApplicationActivationOptions::activateIgnoringOtherApps);
    focusAndRaise(element, application);
    platform.dispatch.mainAsync(lifetime.guard([this, element, application] { focusAndRaise(element, application); }));
}

}  // namespace brindle
