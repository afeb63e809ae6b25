#include "desk/display/WindowShadow.h"

#include <QBrush>
#include <QPainter>
#include <cmath>

#include "desk/display/BlurredEdge.h"

namespace desk {

namespace {

struct Look {
    double sigma;  // points
    double drop;   // how much lower than the window it lies
    double opacity;
};

Look lookOf(WindowShadow::Depth depth) {
    return depth == WindowShadow::Depth::front ? Look{14, 8, 0.42} : Look{9, 4, 0.26};
}

constexpr double sigmas = 2.6;  // beyond which nothing is seen
constexpr int strip = 64;

// Black of that opacity for each pixel, by its distance inside the vertical and the horizontal edge.
template <typename Opacity>
QImage shade(int width, int height, Opacity opacity) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) line[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(255 * opacity(x, y))));
    }
    return image;
}

}  // namespace

double WindowShadow::reach(Depth depth) {
    const Look look = lookOf(depth);
    return std::ceil(look.sigma * sigmas);
}

double WindowShadow::drop(Depth depth) {
    return lookOf(depth).drop;
}

const WindowShadow::Pieces& WindowShadow::pieces(Depth depth, double scale) {
    const auto key = std::pair(depth, scale);
    if (const auto found = kept.find(key); found != kept.end()) return found->second;
    const Look look = lookOf(depth);
    const double sigma = look.sigma * scale;
    const int extent = static_cast<int>(std::lround(reach(depth) * scale));
    const auto across = [&](int at) { return blurredEdge(at + 0.5 - extent, sigma); };
    Pieces made;
    made.topLeft = shade(2 * extent, 2 * extent, [&](int x, int y) { return look.opacity * across(x) * across(y); });
    made.top = shade(strip, 2 * extent, [&](int, int y) { return look.opacity * across(y); });
    made.left = shade(2 * extent, strip, [&](int x, int) { return look.opacity * across(x); });
    return kept.emplace(key, std::move(made)).first->second;
}

void WindowShadow::paint(QPainter& painter, const QRect& window, Depth depth, double scale) {
    const Pieces& made = pieces(depth, scale);
    const int extent = made.topLeft.width() / 2;
    const QRect cast = window.translated(0, static_cast<int>(std::lround(lookOf(depth).drop * scale)));
    if (cast.width() < 2 * extent || cast.height() < 2 * extent) return;
    const QRect outer = cast.adjusted(-extent, -extent, extent, extent);
    const int right = cast.right() + 1 - extent;
    const int bottom = cast.bottom() + 1 - extent;
    painter.drawImage(outer.topLeft(), made.topLeft);
    painter.drawImage(QPoint(right, outer.top()), made.topLeft.mirrored(true, false));
    painter.drawImage(QPoint(right, bottom), made.topLeft.mirrored(true, true));
    painter.drawImage(QPoint(outer.left(), bottom), made.topLeft.mirrored(false, true));

    const auto tile = [&](const QRect& rect, const QImage& image) {
        painter.setBrushOrigin(rect.topLeft());
        painter.fillRect(rect, QBrush(image));
    };
    const int width = cast.width() - 2 * extent;
    const int height = cast.height() - 2 * extent;
    tile(QRect(cast.left() + extent, outer.top(), width, 2 * extent), made.top);
    tile(QRect(cast.left() + extent, bottom, width, 2 * extent), made.top.mirrored(false, true));
    tile(QRect(outer.left(), cast.top() + extent, 2 * extent, height), made.left);
    tile(QRect(right, cast.top() + extent, 2 * extent, height), made.left.mirrored(true, false));
    painter.setBrushOrigin(0, 0);
}

}  // namespace desk
