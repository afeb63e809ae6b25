#include "platform/Screens.h"

namespace platform {

const NSScreen* screenShowingMost(const std::vector<NSScreen>& screens, const CGRect& appKitRect) {
    const NSScreen* best = nullptr;
    double bestArea = 0;
    for (const NSScreen& screen : screens) {
        const CGRect shared = CGRectIntersection(screen.frame, appKitRect);
        const double area = CGRectIsNull(shared) ? 0 : shared.width() * shared.height();
        if (best != nullptr && !(area > bestArea)) continue;
        best = &screen;
        bestArea = area;
    }
    return best;
}

}  // namespace platform
