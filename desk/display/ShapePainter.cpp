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
    return number(tile.corner.radius) * 31 + number(tile.corner.extent) * 17 + number(tile.lineWidth) * 7 +
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
    drawCorners(painter, {corner, 0, color.rgba()}, *whole);
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
    drawCorners(painter, {corner, lineWidth, color.rgba()}, *outer);
    const QRect sides = outer->adjusted(0, size, 0, -size);
    const QRect lines = outer->adjusted(size, 0, -size, 0);
    painter.fillRect(QRect(sides.left(), sides.top(), width, sides.height()), color);
    painter.fillRect(QRect(sides.right() + 1 - width, sides.top(), width, sides.height()), color);
    painter.fillRect(QRect(lines.left(), lines.top(), lines.width(), width), color);
    painter.fillRect(QRect(lines.left(), lines.bottom() + 1 - width, lines.width(), width), color);
}

QImage ShapePainter::drawn(const Tile& tile, int size) {
    QImage image(2 * size, 2 * size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double half = tile.lineWidth / 2;
    const QPainterPath path = tile.corner.path(QRectF(image.rect()).adjusted(half, half, -half, -half));
    const QColor color = QColor::fromRgba(tile.color);
    if (tile.lineWidth > 0)
        painter.strokePath(path, linePen(color, tile.lineWidth));
    else
        painter.fillPath(path, color);
    return image;
}

void ShapePainter::drawCorners(QPainter& painter, const Tile& tile, const QRect& outer) {
    const int size = tileSize(tile.corner, tile.lineWidth);
    const QImage* corners = tiles.find(tile);
    if (corners == nullptr) corners = &tiles.insert(tile, drawn(tile, size));
    const int right = outer.right() + 1 - size;
    const int bottom = outer.bottom() + 1 - size;
    painter.drawImage(outer.left(), outer.top(), *corners, 0, 0, size, size);
    painter.drawImage(right, outer.top(), *corners, size, 0, size, size);
    painter.drawImage(right, bottom, *corners, size, size, size, size);
    painter.drawImage(outer.left(), bottom, *corners, 0, size, size, size);
}

}  // namespace desk
