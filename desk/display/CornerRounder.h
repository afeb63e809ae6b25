// Gives a square-cornered picture round corners after it has been painted over something else: what was behind the corners is taken before and put back
// after. Costs four small copies, where painting through a rounded clip costs the whole picture.
#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <array>

class QPainter;

namespace desk {

class CornerRounder {
public:
    // `target` is what the painter paints onto; all in device pixels.
    CornerRounder(const QImage& target, const QRect& window, double radius);
    void restore(QPainter& painter) const;
    // Of the squares at the corners, in which something of what is behind is seen.
    static int squareSize(const QRect& window, double radius);

private:
    struct Corner {
        QPoint place;
        QImage behind;
    };

    QRect frame;
    double cornerRadius;
    std::array<Corner, 4> corners;
};

}  // namespace desk
