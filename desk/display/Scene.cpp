#include "desk/display/Scene.h"

#include <cmath>

namespace desk {

QRect pixelsOf(const platform::CGRect& appKitRect, const platform::CGPoint& topLeft, double scale) {
    const auto whole = [scale](double points) { return static_cast<int>(std::lround(points * scale)); };
    return {whole(appKitRect.minX() - topLeft.x), whole(topLeft.y - appKitRect.maxY()), whole(appKitRect.width()),
            whole(appKitRect.height())};
}

}  // namespace desk
