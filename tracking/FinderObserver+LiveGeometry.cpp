// How the bar stays with a window that is being dragged: a tracking run from press to release, and single moves and resizes outside one. The
// published windows are brought up to date once, when a tracking run ends.
//
//   from                 event                                                         to
//   idle                 press in the active window's strip, Finder in front           waiting
//   waiting              two successive Accessibility frames differ                    predicting
//   waiting, predicting  release, stop(), Finder or the window no longer in front      idle
#include <algorithm>
#include <cmath>

#include "tracking/CoordinateSpaceConverter.h"
#include "tracking/FinderObserver.h"
#include "tracking/RectangleMatching.h"

namespace brindle {

using platform::CGPoint;
using platform::CGRect;

namespace {

constexpr double stripHeight = 120.0;
constexpr double smallestChange = 0.5;
constexpr double largestDrift = 240.0;
constexpr int lowestTickRate = 60;

}  // namespace

FinderObserver::LiveGeometryState FinderObserver::liveGeometryState() const {
    if (!liveGeometryWindowID) return LiveGeometryState::idle;
    return liveGeometryIsConfirmed ? LiveGeometryState::predicting : LiveGeometryState::waiting;
}

void FinderObserver::startLiveGeometryTracking(const CGPoint& mouseLocation) {
    stopLiveGeometryTracking();
    if (!*finderIsFrontmost) return;
    const auto& active = *activeWindow;
    if (!active || active->isFullScreen) return;
    const CGRect frame = active->frame;
    const double height = std::min(frame.height(), stripHeight);
    const CGRect strip = platform::CGRectMake(frame.minX(), frame.maxY() - height, frame.width(), height);
    if (!platform::CGRectContainsPoint(strip, mouseLocation)) return;
    const auto& application = windowEventMonitor().applicationElement();
    if (!application) return;
    const auto focused = AccessibilityReader(platform.accessibility).copyElement("AXFocusedWindow", *application);
    if (!focused) return;

    liveGeometryWindowID = active->id;
    liveGeometryElement = focused;
    liveGeometryLastMouseLocation = mouseLocation;
    liveGeometryLastObservedFrame = frame;
    liveGeometryPredictedFrame = frame;
    liveGeometryLastPublishedFrame = frame;
    liveGeometryIsConfirmed = false;
    updateLiveGeometry(mouseLocation, true);

    const platform::NSScreen* shownOn = screen(frame);
    const int tickRate =
        std::max(shownOn == nullptr ? lowestTickRate : shownOn->maximumFramesPerSecond, lowestTickRate);
    liveGeometryTimer = platform.runLoop.addTimer(
        platform::seconds(1.0 / tickRate), true, platform::Duration(0),
        lifetime.guard([this] { updateLiveGeometry(platform.events.mouseLocation(), true); }));
}

void FinderObserver::updateLiveGeometry(const CGPoint& mouseLocation, bool reconcileWithFinder) {
    const auto& active = *activeWindow;
    if (!*finderIsFrontmost || !liveGeometryWindowID || !active || active->id != *liveGeometryWindowID) {
        stopLiveGeometryTracking();
        return;
    }
    const auto index = indexOfWindow(*liveGeometryWindowID);
    if (!index) {
        stopLiveGeometryTracking();
        return;
    }
    const FinderWindowState& state = (*windows)[*index];
    if (liveGeometryIsConfirmed)
        predict(state, mouseLocation, reconcileWithFinder);
    else
        awaitFirstMove(state, mouseLocation);
}

void FinderObserver::awaitFirstMove(const FinderWindowState& state, const CGPoint& mouseLocation) {
    const auto observed = copyLiveGeometryFrame();
    if (!observed) return;
    const CGRect previous = liveGeometryLastObservedFrame.value_or(state.frame);
    liveGeometryLastObservedFrame = observed;
    if (frameDistance(previous, *observed) < smallestChange) return;
    liveGeometryIsConfirmed = true;
    liveGeometryPredictedFrame = observed;
    liveGeometryLastMouseLocation = mouseLocation;
    publishLiveGeometry(*observed, *liveGeometryWindowID, state.isFullScreen);
}

void FinderObserver::predict(const FinderWindowState& state, const CGPoint& mouseLocation, bool reconcileWithFinder) {
    CGRect prediction = liveGeometryPredictedFrame.value_or(state.frame);
    if (liveGeometryLastMouseLocation) {
        prediction.origin.x += mouseLocation.x - liveGeometryLastMouseLocation->x;
        prediction.origin.y += mouseLocation.y - liveGeometryLastMouseLocation->y;
    }
    liveGeometryLastMouseLocation = mouseLocation;
    if (reconcileWithFinder) prediction = reconciled(prediction);
    liveGeometryPredictedFrame = prediction;
    publishLiveGeometry(prediction, *liveGeometryWindowID, state.isFullScreen);
}

// Finder's own frame lags behind the mouse, so it is taken only where the prediction must be wrong: in a resize, or far off.
CGRect FinderObserver::reconciled(const CGRect& prediction) {
    const auto observed = copyLiveGeometryFrame();
    if (!observed) return prediction;
    liveGeometryLastObservedFrame = observed;
    const bool resized = std::abs(observed->width() - prediction.width()) >= smallestChange ||
                         std::abs(observed->height() - prediction.height()) >= smallestChange;
    const double drift =
        std::abs(observed->minX() - prediction.minX()) + std::abs(observed->minY() - prediction.minY());
    return resized || drift > largestDrift ? *observed : prediction;
}

void FinderObserver::publishLiveGeometry(const CGRect& frame, const std::string& windowID, bool isFullScreen) {
    if (liveGeometryLastPublishedFrame && frameDistance(*liveGeometryLastPublishedFrame, frame) < smallestChange)
        return;
    liveGeometryLastPublishedFrame = frame;
    if (onLiveGeometryChange) onLiveGeometryChange(windowID, frame, isFullScreen);
}

void FinderObserver::stopLiveGeometryTracking() {
    if (liveGeometryWindowID) {
        const auto frame = copyLiveGeometryFrame();
        const auto index = frame ? indexOfWindow(*liveGeometryWindowID) : std::nullopt;
        // Where the window really is, and not where it was predicted.
        if (index) changeWindow(*index, [&](FinderWindowState& state) { state.frame = *frame; });
    }
    if (liveGeometryTimer) liveGeometryTimer->invalidate();
    liveGeometryTimer.reset();
    liveGeometryWindowID.reset();
    liveGeometryElement.reset();
    liveGeometryLastMouseLocation.reset();
    liveGeometryLastObservedFrame.reset();
    liveGeometryPredictedFrame.reset();
    liveGeometryLastPublishedFrame.reset();
    liveGeometryIsConfirmed = false;
}

std::optional<CGRect> FinderObserver::copyLiveGeometryFrame() {
    if (!liveGeometryElement) return std::nullopt;
    const auto topLeftFrame = windowEventMonitor().copyFrame(*liveGeometryElement);
    if (!topLeftFrame) return std::nullopt;
    return CoordinateSpaceConverter::appKitRect(platform.screens, *topLeftFrame);
}

bool FinderObserver::applyGeometryEvent(const FinderWindowEvent& event) {
    if (!event.topLeftFrame || windows->empty()) return false;
    const CGRect frame = CoordinateSpaceConverter::appKitRect(platform.screens, *event.topLeftFrame);
    const auto index = indexOfWindow(event, frame);
    if (!index) return false;
    changeWindow(*index, [&](FinderWindowState& state) {
        state.frame = frame;
        if (event.isFullScreen) state.isFullScreen = *event.isFullScreen;
    });
    return true;
}

std::optional<std::size_t> FinderObserver::indexOfWindow(const FinderWindowEvent& event, const CGRect& frame) const {
    const auto& active = *activeWindow;
    if (event.isMain && *finderIsFrontmost && active) return indexOfWindow(active->id);
    const std::vector<FinderWindowState>& list = *windows;
    auto chosen = list.end();
    if (event.title) {
        chosen = std::find_if(list.begin(), list.end(), [&](const FinderWindowState& state) {
            return state.displayName == *event.title || state.folderName() == *event.title;
        });
    }
    if (chosen == list.end()) {
        chosen =
            std::min_element(list.begin(), list.end(), [&](const FinderWindowState& a, const FinderWindowState& b) {
                return frameDistance(a.frame, frame) < frameDistance(b.frame, frame);
            });
    }
    return static_cast<std::size_t>(chosen - list.begin());
}

}  // namespace brindle
