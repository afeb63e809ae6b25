#include "desk/display/ShapePainter.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <functional>
#include <optional>

namespace desk {

namespace {

constexpr double pixelTolerance = 1e-3;
constexpr double miterLimit = 10;

bool isWhole(double value) {
    return std::abs(value - std::round(value)) < pixelTolerance;
}

std::optional<QRect> wholePixels(const QRectF& rect) {
    if (!isWhole(rect.left()) || !isWhole(rect.top()) || !isWhole(rect.width()) || !isWhole(rect.height()))
        return std::nullopt;
    return rect.toRect();
}

int tileSize(const RoundedCorner& corner, double lineWidth) {
    return static_cast<int>(std::ceil(corner.extent + lineWidth / 2 - pixelTolerance));
}

bool hasRoomForCorners(const QRect& outer, int size) {
    return outer.width() >= 2 * size && outer.height() >= 2 * size;
}

QPen linePen(const QColor& color, double width) {
    QPen pen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    pen.setMiterLimit(miterLimit);
    return pen;
}

}  // namespace

std::size_t ShapePainter::TileHash::operator()(const Tile& tile) const {
    const std::hash<double> number;
    return number(tile.corner.extent) * 31 + number(tile.corner.exponent) * 17 + number(tile.lineWidth) * 7 +
           tile.color * std::size_t{0x9e3779b9};
}

ShapePainter::ShapePainter() : tiles(128) {}

void ShapePainter::fill(QPainter& painter, const QRectF& rect, double radius, platform::CornerStyle style,
                        const QColor& color) {
    if (rect.isEmpty() || color.alpha() == 0) return;
    const RoundedCorner corner = RoundedCorner::of(rect.size(), radius, style);
    const std::optional<QRect> whole = wholePixels(rect);
    const int size = tileSize(corner, 0);
    if (!whole || !hasRoomForCorners(*whole, size)) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(corner.path(rect), color);
        return;
    }
    if (size == 0) {
        painter.fillRect(*whole, color);
        return;
    }
    drawCorners(painter, corners({corner, 0, color.rgba()}), *whole);
    painter.fillRect(whole->adjusted(size, 0, -size, 0), color);
    painter.fillRect(QRect(whole->left(), whole->top() + size, size, whole->height() - 2 * size), color);
    painter.fillRect(QRect(whole->right() + 1 - size, whole->top() + size, size, whole->height() - 2 * size), color);
}

void ShapePainter::stroke(QPainter& painter, const QRectF& rect, double radius, platform::CornerStyle style,
                          double lineWidth, const QColor& color) {
    if (!(lineWidth > 0) || rect.isEmpty() || color.alpha() == 0) return;
    const RoundedCorner corner = RoundedCorner::of(rect.size(), radius, style);
    const double half = lineWidth / 2;
    const std::optional<QRect> outer = wholePixels(rect.adjusted(-half, -half, half, half));
    const int size = tileSize(corner, lineWidth);
    if (!outer || !isWhole(lineWidth) || !hasRoomForCorners(*outer, size)) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.strokePath(corner.path(rect), linePen(color, lineWidth));
        return;
    }
    const int width = static_cast<int>(std::lround(lineWidth));
    drawCorners(painter, corners({corner, lineWidth, color.rgba()}), *outer);
    const QRect sides = outer->adjusted(0, size, 0, -size);
    const QRect lines = outer->adjusted(size, 0, -size, 0);
    painter.fillRect(QRect(sides.left(), sides.top(), width, sides.height()), color);
    painter.fillRect(QRect(sides.right() + 1 - width, sides.top(), width, sides.height()), color);
    painter.fillRect(QRect(lines.left(), lines.top(), lines.width(), width), color);
    painter.fillRect(QRect(lines.left(), lines.bottom() + 1 - width, lines.width(), width), color);
}

const ShapePainter::Corners& ShapePainter::corners(const Tile& tile) {
    if (const Corners* known = tiles.find(tile)) return *known;
    const int size = tileSize(tile.corner, tile.lineWidth);
    QImage topLeft(size, size, QImage::Format_ARGB32_Premultiplied);
    topLeft.fill(Qt::transparent);
    {
        QPainter painter(&topLeft);
        painter.setRenderHint(QPainter::Antialiasing);
        const double half = tile.lineWidth / 2;
        const QPainterPath path = tile.corner.path(QRectF(half, half, 4.0 * size, 4.0 * size));
        const QColor color = QColor::fromRgba(tile.color);
        if (tile.lineWidth > 0)
            painter.strokePath(path, linePen(color, tile.lineWidth));
        else
            painter.fillPath(path, color);
    }
    return tiles.insert(
        tile, {topLeft, topLeft.mirrored(true, false), topLeft.mirrored(true, true), topLeft.mirrored(false, true)});
}

void ShapePainter::drawCorners(QPainter& painter, const Corners& images, const QRect& outer) {
    const int size = images[0].width();
    const int right = outer.right() + 1 - size;
    const int bottom = outer.bottom() + 1 - size;
    painter.drawImage(QPoint(outer.left(), outer.top()), images[0]);
    painter.drawImage(QPoint(right, outer.top()), images[1]);
    painter.drawImage(QPoint(right, bottom), images[2]);
    painter.drawImage(QPoint(outer.left(), bottom), images[3]);
}

}  // namespace desk
