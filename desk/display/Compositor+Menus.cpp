// What floats above all windows: popovers, and the open menu in front of them.
#include <QPainter>
#include <QPainterPath>

#include "desk/Machine.h"
#include "desk/display/Compositor.h"
#include "desk/display/CornerRounder.h"
#include "desk/display/MenuDrawing.h"
#include "desk/display/Scene.h"

namespace desk {

namespace {

using platform::RectEdge;

constexpr platform::Color lightPopover = platform::Color::hex(0xF5F4F5);
constexpr platform::Color darkPopover = platform::Color::hex(0x323134);
constexpr float edgeOpacity = 0.16F;
constexpr double toolTipCornerRadius = 3;

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

void Compositor::paintMenus(Machine& machine, Scene& scene) {
    for (const ShownPopover& shown : machine.menus.popovers()) paintPopover(scene, shown);
    paintToolTip(machine, scene);
    const OpenMenu* menu = machine.menus.menu();
    if (menu == nullptr) return;
    DrawingBuilder builder(machine.text, scene.palette.scheme);
    drawMenu(builder, *menu);
    const QRect pixels = scene.pixels(menu->frame());
    shadow.paint(scene.painter, pixels, WindowShadow::Depth::back, scene.scale);
    const CornerRounder rounder(scene.image, pixels, menuCornerRadius * scene.scale);
    painter.paint(scene.painter, builder.drawing, scene.palette, scene.scale, pixels.topLeft());
    rounder.restore(scene.painter);
}

void Compositor::paintToolTip(Machine& machine, Scene& scene) {
    const auto shown = machine.toolTips.shown();
    if (!shown) return;
    const platform::CGRect whole{{0, 0}, shown->frame.size};
    DrawingBuilder builder(machine.text, scene.palette.scheme);
    builder.fill(whole, builder.shade(0xF6F5F6, 0x3A393C), toolTipCornerRadius);
    builder.border(whole, builder.shade(0x000000, 0xFFFFFF, 0.18), 0.5, toolTipCornerRadius);
    builder.text(shown->text, toolTipFont, platform::Color::of(platform::ColorRole::primary),
                 CGRectInset(whole, toolTipInset, 0));
    painter.paint(scene.painter, builder.drawing, scene.palette, scene.scale, scene.pixels(shown->frame).topLeft());
}

void Compositor::paintPopover(Scene& scene, const ShownPopover& shown) {
    const bool isDark = scene.palette.scheme == platform::ColorScheme::dark;
    const QRect body = scene.pixels(shown.place.body);
    const QPainterPath outline = outlineOf(shown.place, scene);
    shadow.paint(scene.painter, body, WindowShadow::Depth::back, scene.scale);
    QColor edge(isDark ? Qt::white : Qt::black);
    edge.setAlphaF(static_cast<float>(edgeOpacity));
    scene.painter.save();
    scene.painter.setRenderHint(QPainter::Antialiasing);
    scene.painter.setPen(QPen(edge, scene.scale / 2));
    scene.painter.setBrush(scene.palette.resolve(isDark ? darkPopover : lightPopover));
    scene.painter.drawPath(outline);
    scene.painter.restore();
    painter.paint(scene.painter, shown.popover->content->drawing(), scene.palette, scene.scale, body.topLeft());
}

}  // namespace desk
