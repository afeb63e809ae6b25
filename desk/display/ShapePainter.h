// Fills and strokes rounded shapes in device pixels. Shapes that lie on whole pixels, as nearly all do, are put together from plain rectangles and
// small cached pictures of their corners: large antialiased fills cost far more, and the toolkit may hand them to its thread pool.
#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>
#include <cstddef>

#include "desk/display/BoundedCache.h"
#include "desk/display/RoundedCorner.h"
#include "platform/Drawing.h"

class QPainter;

namespace desk {

class ShapePainter {
public:
    ShapePainter();

    void fill(QPainter& painter, const QRectF& rect, double radius, platform::CornerStyle style, const QColor& color);
    // The line is centred on the edge; butt caps, mitred joins with limit 10.
    void stroke(QPainter& painter, const QRectF& rect, double radius, platform::CornerStyle style, double lineWidth,
                const QColor& color);

private:
    struct Tile {
        RoundedCorner corner;
        double lineWidth;  // 0: filled
        QRgb color;
        friend bool operator==(const Tile&, const Tile&) = default;
    };
    struct TileHash {
        using is_transparent = void;
        std::size_t operator()(const Tile& tile) const;
    };

    static QImage drawn(const Tile& tile, int size);
    // Copies the four corners of the tile's picture into those of the rectangle.
    void drawCorners(QPainter& painter, const Tile& tile, const QRect& outer);

    BoundedCache<Tile, QImage, TileHash, std::equal_to<>> tiles;
};

}  // namespace desk
