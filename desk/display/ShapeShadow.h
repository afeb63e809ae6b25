// The shadow that one small shape throws, in device pixels. It is worked out pixel by pixel and not kept, and paints under the shape as well.
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace desk {

struct ShapeShadow {
    QRectF shape;  // where it falls
    double cornerRadius;
    double blur;  // how far its edge is spread on either side
    QColor color;

    void paint(QPainter& painter) const;
};

}  // namespace desk
