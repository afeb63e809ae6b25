#include "desk/display/SymbolSketch.h"

#include <QLineF>
#include <QPainter>
#include <QPen>
#include <algorithm>
#include <array>
#include <utility>

namespace desk {

namespace {

constexpr std::array strokeWidths{0.09, 0.105, 0.125, 0.145};  // by weight

QPainterPath pathThrough(std::initializer_list<QPointF> points) {
    QPainterPath path;
    for (const QPointF& point : points) {
        if (path.elementCount() == 0)
            path.moveTo(point);
        else
            path.lineTo(point);
    }
    return path;
}

QPointF towards(QPointF from, QPointF to, double distance) {
    const QLineF line(from, to);
    return line.length() > 0 ? line.pointAt(std::min(0.5, distance / line.length())) : from;
}

}  // namespace

SymbolSketch::SymbolSketch(platform::FontWeight weight)
    : width(strokeWidths[std::min<std::size_t>(static_cast<std::size_t>(weight), strokeWidths.size() - 1)]) {}

void SymbolSketch::line(std::initializer_list<QPointF> points, double widthFactor) {
    steps.push_back({pathThrough(points), width * widthFactor, false, false});
}

void SymbolSketch::outline(const QPainterPath& path) {
    steps.push_back({path, width, false, false});
}

void SymbolSketch::fill(const QPainterPath& path) {
    steps.push_back({path, 0, true, false});
}

void SymbolSketch::eraseLine(std::initializer_list<QPointF> points) {
    steps.push_back({pathThrough(points), width, false, true});
}

void SymbolSketch::erase(const QPainterPath& path, double margin) {
    steps.push_back({path, 2 * margin, true, true});
}

QPainterPath SymbolSketch::circle(QPointF center, double radius) {
    QPainterPath path;
    path.addEllipse(center, radius, radius);
    return path;
}

QPainterPath SymbolSketch::rounded(QRectF rect, double radius) {
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

QPainterPath SymbolSketch::polygon(std::initializer_list<QPointF> corners, double radius) {
    const std::vector<QPointF> all(corners);
    QPainterPath path;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const QPointF corner = all[i];
        const QPointF before = towards(corner, all[(i + all.size() - 1) % all.size()], radius);
        const QPointF after = towards(corner, all[(i + 1) % all.size()], radius);
        if (i == 0)
            path.moveTo(before);
        else
            path.lineTo(before);
        path.quadTo(corner, after);
    }
    path.closeSubpath();
    return path;
}

void SymbolSketch::paintMask(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Step& step : steps) {
        painter.setCompositionMode(step.erases ? QPainter::CompositionMode_DestinationOut
                                               : QPainter::CompositionMode_SourceOver);
        painter.setPen(step.strokeWidth > 0
                           ? QPen(Qt::black, step.strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                           : QPen(Qt::NoPen));
        painter.setBrush(step.fills ? QBrush(Qt::black) : QBrush(Qt::NoBrush));
        painter.drawPath(step.path);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

}  // namespace desk
