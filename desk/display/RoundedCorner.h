// The corners of a rounded shape, in the caller's units. A continuous corner eases into its sides: it begins half as far again from the corner as a circular one, where the sides are
// long enough, and meets it on the diagonal.
#pragma once

#include <QPainterPath>
#include <QRectF>

#include "platform/Drawing.h"

namespace desk {

struct RoundedCorner {
    double radius = 0;  // 0: a square corner
    double extent = 0;  // along each side

    static RoundedCorner of(QSizeF size, double radius, platform::CornerStyle style);
    QPainterPath path(const QRectF& rect) const;
    friend bool operator==(const RoundedCorner&, const RoundedCorner&) = default;
};

}  // namespace desk
