// The soft shadow around a window, put together from one kept picture of a corner and strips of an edge. Paints only around the window, not under it.
#pragma once

#include <QImage>
#include <QRect>
#include <map>
#include <utility>

class QPainter;

namespace desk {

class WindowShadow {
public:
    enum class Depth { front, back };

    // `window` in device pixels.
    void paint(QPainter& painter, const QRect& window, Depth depth, double scale);
    // How far beyond the window's edges it reaches, in points.
    static double reach(Depth depth);
    // How much lower than the window it lies, in points.
    static double drop(Depth depth);

private:
    struct Pieces {
        QImage topLeft;  // twice the reach wide and high, its middle on the window's corner
        QImage top;      // a strip of the upper edge
        QImage left;
    };
    const Pieces& pieces(Depth depth, double scale);

    std::map<std::pair<Depth, double>, Pieces> kept;
};

}  // namespace desk
