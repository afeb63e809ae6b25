#include "play/live/LiveCounters.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "play/BarParts.h"
#include "play/Session.h"

namespace play {

namespace {

const desk::Layer* layerOf(const desk::DesktopFrame& frame, std::int64_t id) {
    const auto found = std::find_if(frame.layers.begin(), frame.layers.end(),
                                    [&](const desk::Layer& layer) { return layer.id == id; });
    return found == frame.layers.end() ? nullptr : &*found;
}

// A full-screen window's bar lies inside it, along its lower edge.
double distanceOf(const platform::CGRect& bar, const platform::CGRect& window, bool isFullScreen) {
    const double edge = isFullScreen ? window.minY() : window.maxY();
    return std::max(
        {std::abs(bar.minX() - window.minX()), std::abs(bar.maxX() - window.maxX()), std::abs(bar.minY() - edge)});
}

}  // namespace

LiveCounters::Counts LiveCounters::total() const {
    Counts counts;
    counts.layouts = barLayouts(session);
    counts.barPaints = session.compositor.counts().barPaints;
    counts.pictures = session.compositor.counts().updates;
    if (const auto* orvane = session.orvane()) {
        const auto& observed = orvane->appDelegate.finderObserver().counts();
        counts.passes = observed.passes;
        counts.fetches = observed.pathFetches + observed.selectionFetches;
    }
    return counts;
}

LiveCounters::Counts LiveCounters::lately() {
    const platform::Date now = session.machine.scheduler.now();
    const Counts counts = total();
    while (!samples.empty() && now - samples.front().when > std::chrono::seconds(1)) samples.pop_front();
    samples.push_back({now, counts});
    const Counts& before = samples.front().counts;
    return {counts.passes - before.passes, counts.fetches - before.fetches, counts.layouts - before.layouts,
            counts.barPaints - before.barPaints, counts.pictures - before.pictures};
}

void LiveCounters::note(const desk::DesktopFrame& frame) {
    farthest = 0;
    const auto* orvane = session.orvane();
    if (orvane == nullptr) return;
    for (const auto& state : orvane->appDelegate.finderObserver().windows.get()) {
        const desk::Layer* window = layerOf(frame, state.windowNumber);
        const desk::Layer* bar = layerOf(frame, panelNumber(session, state.windowNumber));
        if (window != nullptr && bar != nullptr)
            farthest = std::max(farthest, distanceOf(bar->frame, window->frame, state.isFullScreen));
    }
}

}  // namespace play
