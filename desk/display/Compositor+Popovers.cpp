// Popovers: body and arrow as one shape.
#include <QPainter>
#include <QPainterPath>

#include "desk/display/Compositor.h"
#include "desk/display/Scene.h"

namespace desk {

namespace {

using platform::RectEdge;

constexpr platform::Color lightPopover = platform::Color::hex(0xF5F4F5);
constexpr platform::Color darkPopover = platform::Color::hex(0x323134);
constexpr float edgeOpacity = 0.16F;

// The arrow as a triangle with its base in the body's edge; a little inside it, so that the two become one shape.
QPainterPath arrowOf(const PopoverPlace& place, const Scene& scene) {
    const auto device = [&](double x, double y) {
        return QPointF((x - scene.topLeft.x) * scene.scale, (scene.topLeft.y - y) * scene.scale);
    };
    const bool isUpright = place.edge == RectEdge::minY || place.edge == RectEdge::maxY;
    const double sign = place.edge == RectEdge::minY || place.edge == RectEdge::minX ? -1 : 1;
    const double depth = sign * (popoverArrowLength + 1);
    const double half = popoverArrowWidth / 2;
    const platform::CGPoint& tip = place.tip;
    QPainterPath path(device(tip.x, tip.y));
    if (isUpright) {
        path.lineTo(device(tip.x - half, tip.y + depth));
        path.lineTo(device(tip.x + half, tip.y + depth));
    } else {
        path.lineTo(device(tip.x + depth, tip.y - half));
        path.lineTo(device(tip.x + depth, tip.y + half));
    }
    path.closeSubpath();
    return path;
}

QPainterPath outlineOf(const PopoverPlace& place, const Scene& scene) {
    const double radius = popoverCornerRadius * scene.scale;
    QPainterPath path;
    path.addRoundedRect(QRectF(scene.pixels(place.body)), radius, radius);
    return path.united(arrowOf(place, scene));
}

}  // namespace

void Compositor::paintPopover(Scene& scene, const Layer& layer) {
    const bool isDark = scene.palette.scheme == platform::ColorScheme::dark;
    const QRect body = scene.pixels(layer.frame);
    shadow.paint(scene.painter, body, WindowShadow::Depth::back, scene.scale);
    QColor edge(isDark ? Qt::white : Qt::black);
    edge.setAlphaF(static_cast<float>(edgeOpacity));
    scene.painter.save();
    scene.painter.setRenderHint(QPainter::Antialiasing);
    scene.painter.setPen(QPen(edge, scene.scale / 2));
    scene.painter.setBrush(scene.palette.resolve(isDark ? darkPopover : lightPopover));
    scene.painter.drawPath(outlineOf(*layer.popover, scene));
    scene.painter.restore();
    painter.paint(scene.painter, *layer.background, scene.palette, scene.scale, body.topLeft());
}

}  // namespace desk
