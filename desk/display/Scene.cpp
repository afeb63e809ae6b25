#include "desk/display/Scene.h"

#include <cmath>

namespace desk {

QRect Scene::pixels(const platform::CGRect& appKitRect) const {
    const auto whole = [this](double points) { return static_cast<int>(std::lround(points * scale)); };
    return {whole(appKitRect.minX() - topLeft.x), whole(topLeft.y - appKitRect.maxY()), whole(appKitRect.width()),
            whole(appKitRect.height())};
}

}  // namespace desk
