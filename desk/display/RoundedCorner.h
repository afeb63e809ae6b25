// The outline of a rounded shape's corners. A continuous corner eases into its sides: a superellipse that reaches further along them than the
// radius and meets the circle of that radius on the diagonal. Where the sides are too short for that it comes nearer to the circle, which a
// capsule's ends are. Units are the caller's.
#pragma once

#include <QPainterPath>
#include <QRectF>

#include "platform/Drawing.h"

namespace desk {

struct RoundedCorner {
    double extent = 0;    // along each side; 0: a square corner
    double exponent = 2;  // 2 is a circle

    static RoundedCorner of(QSizeF size, double radius, platform::CornerStyle style);
    QPainterPath path(const QRectF& rect) const;
    friend bool operator==(const RoundedCorner&, const RoundedCorner&) = default;
};

}  // namespace desk
