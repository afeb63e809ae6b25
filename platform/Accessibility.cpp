#include "platform/Accessibility.h"

#include <cmath>

namespace platform {

std::optional<AXValue> AXValueCreate(CGPoint point) {
    if (!std::isfinite(point.x) || !std::isfinite(point.y)) return std::nullopt;
    return AXValue(point);
}

std::optional<AXValue> AXValueCreate(CGSize size) {
    if (!std::isfinite(size.width) || !std::isfinite(size.height)) return std::nullopt;
    return AXValue(size);
}

}  // namespace platform
