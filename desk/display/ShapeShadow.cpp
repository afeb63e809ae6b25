#include "desk/display/ShapeShadow.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desk/display/BlurredEdge.h"

namespace desk {

namespace {

constexpr double largest = 1024;  // pixels; what is larger throws none

// How far inside a rounded rectangle a point is that is so far from its middle.
double distanceInside(QPointF fromMiddle, QSizeF half, double radius) {
    const double x = std::abs(fromMiddle.x()) - half.width() + radius;
    const double y = std::abs(fromMiddle.y()) - half.height() + radius;
    return radius - std::hypot(std::max(x, 0.0), std::max(y, 0.0)) - std::min(std::max(x, y), 0.0);
}

}  // namespace

void ShapeShadow::paint(QPainter& painter) const {
    const double reach = 2 * blur + 1;
    const QRect area = shape.adjusted(-reach, -reach, reach, reach).toAlignedRect();
    if (area.width() > largest || area.height() > largest) return;
    const double sigma = std::max(blur / 2, 0.25);
    const double radius = std::min({cornerRadius, shape.width() / 2, shape.height() / 2});
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QPointF pixel(area.left() + x + 0.5, area.top() + y + 0.5);
            const double inside = distanceInside(pixel - shape.center(), shape.size() / 2, radius);
            QColor shade = color;
            shade.setAlphaF(static_cast<float>(color.alphaF() * blurredEdge(inside, sigma)));
            line[x] = qPremultiply(shade.rgba());
        }
    }
    painter.drawImage(area.topLeft(), image);
}

}  // namespace desk
