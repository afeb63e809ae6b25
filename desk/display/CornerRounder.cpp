#include "desk/display/CornerRounder.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "desk/display/RoundedCorner.h"

namespace desk {

namespace {

RoundedCorner cornerOf(const QRect& window, double radius) {
    return RoundedCorner::of(window.size(), radius, platform::CornerStyle::continuous);
}

}  // namespace

CornerRounder::CornerRounder(const QImage& target, const QRect& window, double radius)
    : frame(window), cornerRadius(radius) {
    const int size = squareSize(window, radius);
    const int right = window.right() + 1 - size;
    const int bottom = window.bottom() + 1 - size;
    const std::array<QPoint, 4> places{window.topLeft(), QPoint(right, window.top()), QPoint(window.left(), bottom),
                                       QPoint(right, bottom)};
    for (std::size_t i = 0; i < places.size(); ++i) {
        corners[i].place = places[i];
        // Outside the target the copy is transparent, and nothing of it is seen.
        corners[i].behind =
            target.copy(QRect(places[i], QSize(size, size))).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
}

int CornerRounder::squareSize(const QRect& window, double radius) {
    return static_cast<int>(std::ceil(cornerOf(window, radius).extent));
}

void CornerRounder::restore(QPainter& painter) const {
    const QPainterPath inside = cornerOf(frame, cornerRadius).path(frame);
    for (const Corner& corner : corners) {
        QImage outside = corner.behind;
        {
            QPainter erase(&outside);
            erase.setRenderHint(QPainter::Antialiasing);
            erase.setCompositionMode(QPainter::CompositionMode_DestinationOut);
            erase.translate(-corner.place);
            erase.fillPath(inside, Qt::black);
        }
        painter.drawImage(corner.place, outside);
    }
}

}  // namespace desk
