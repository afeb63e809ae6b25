#include "desk/display/RoundedCorner.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace desk {

namespace {

constexpr double continuousReach = 1.5;  // of the radius
const double circleDiagonal = 1 - std::sqrt(0.5);
constexpr int segments = 24;

struct Turn {
    double x;
    double y;
};

}  // namespace

RoundedCorner RoundedCorner::of(QSizeF size, double radius, platform::CornerStyle style) {
    const double most = std::min(size.width(), size.height()) / 2;
    const double circle = std::min(radius, most);
    if (!(circle > 0)) return {};
    if (style == platform::CornerStyle::circular) return {circle, 2};
    RoundedCorner corner;
    corner.extent = std::clamp(continuousReach * circle, circle, most);
    corner.exponent = -std::numbers::ln2 / std::log(1 - circleDiagonal * circle / corner.extent);
    return corner;
}

QPainterPath RoundedCorner::path(const QRectF& rect) const {
    QPainterPath result;
    if (!(extent > 0)) {
        result.addRect(rect);
        return result;
    }
    // From each corner's square, inwards: the way to the centre of its ellipse, in clockwise order from the top left.
    const std::array<QPointF, 4> centers{
        QPointF(rect.left() + extent, rect.top() + extent), QPointF(rect.right() - extent, rect.top() + extent),
        QPointF(rect.right() - extent, rect.bottom() - extent), QPointF(rect.left() + extent, rect.bottom() - extent)};
    constexpr std::array<Turn, 4> directions{Turn{-1, -1}, Turn{1, -1}, Turn{1, 1}, Turn{-1, 1}};
    for (std::size_t i = 0; i < centers.size(); ++i) {
        for (int step = 0; step <= segments; ++step) {
            const bool startsUpright = i % 2 == 0;
            const double angle = (startsUpright ? step : segments - step) * std::numbers::pi / 2 / segments;
            const double x = extent * std::pow(std::max(0.0, std::cos(angle)), 2 / exponent);
            const double y = extent * std::pow(std::max(0.0, std::sin(angle)), 2 / exponent);
            const QPointF point = centers[i] + QPointF(directions[i].x * x, directions[i].y * y);
            if (result.elementCount() == 0)
                result.moveTo(point);
            else
                result.lineTo(point);
        }
    }
    result.closeSubpath();
    return result;
}

}  // namespace desk
