#include "desk/display/RoundedCorner.h"

#include <QTransform>
#include <algorithm>
#include <cmath>

namespace desk {

namespace {

constexpr double continuousReach = 1.5;  // of the radius
const double circleDiagonal = 1 - std::sqrt(0.5);

// The painter's own flattening is a quarter of a pixel off, which shows at the ends of a capsule.
QPainterPath finelyFlattened(const QPainterPath& path) {
    constexpr double fineness = 32;
    const QPolygonF fine = path.toFillPolygon(QTransform::fromScale(fineness, fineness));
    QPainterPath result;
    result.addPolygon(QTransform::fromScale(1 / fineness, 1 / fineness).map(fine));
    result.closeSubpath();
    return result;
}

}  // namespace

RoundedCorner RoundedCorner::of(QSizeF size, double radius, platform::CornerStyle style) {
    const double most = std::min(size.width(), size.height()) / 2;
    const double circle = std::min(radius, most);
    if (!(circle > 0)) return {};
    return {circle, style == platform::CornerStyle::circular ? circle : std::min(continuousReach * circle, most)};
}

QPainterPath RoundedCorner::path(const QRectF& rect) const {
    QPainterPath result;
    if (!(radius > 0)) {
        result.addRect(rect);
        return result;
    }
    // A cubic with its handles on the sides passes at an eighth of (extent + 3 handles) from both.
    const double handle = (8 * circleDiagonal * radius - extent) / 3;
    const auto turn = [&](QPointF corner, QPointF from, QPointF to) {
        const QPointF start = corner + from * extent;
        result.elementCount() == 0 ? result.moveTo(start) : result.lineTo(start);
        result.cubicTo(corner + from * handle, corner + to * handle, corner + to * extent);
    };
    constexpr QPointF right(1, 0);
    constexpr QPointF down(0, 1);
    turn(rect.topLeft(), down, right);
    turn(rect.topRight(), -right, down);
    turn(rect.bottomRight(), -down, -right);
    turn(rect.bottomLeft(), right, -down);
    return finelyFlattened(result);
}

}  // namespace desk
