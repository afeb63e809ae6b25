#include "tracking/CoordinateSpaceConverter.h"

namespace brindle::CoordinateSpaceConverter {

using platform::CGPoint;
using platform::CGRect;

std::optional<CGRect> anchorFrame(platform::Screens& screens) {
    for (const platform::NSScreen& screen : screens.screens())
        if (screen.frame.origin == CGPoint{0, 0}) return screen.frame;
    const auto main = screens.mainScreen();
    return main ? std::optional(main->frame) : std::nullopt;
}

CGRect appKitRect(platform::Screens& screens, const CGRect& fromTopLeftRect) {
    const auto anchor = anchorFrame(screens);
    if (!anchor) return fromTopLeftRect;
    CGRect converted = fromTopLeftRect;
    converted.origin.y = anchor->maxY() - fromTopLeftRect.origin.y - fromTopLeftRect.size.height;
    return converted;
}

}  // namespace brindle::CoordinateSpaceConverter
