// Drawings painted on their own, and questions to the resulting pixels. The toolkit lives as long as the test program (display_environment.cpp).
#pragma once

#include <QImage>
#include <QPainter>
#include <algorithm>

#include "desk/display/Painter.h"
#include "desk/display/Palette.h"

namespace picture {

inline QImage paint(const platform::Drawing& drawing, platform::CGSize size, double scale = 2,
                    platform::ColorScheme scheme = platform::ColorScheme::light, QColor background = Qt::transparent) {
    QImage image(static_cast<int>(size.width * scale), static_cast<int>(size.height * scale),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(background);
    desk::Painter painter;
    desk::Palette palette;
    palette.scheme = scheme;
    QPainter target(&image);
    painter.paint(target, drawing, palette, scale);
    return image;
}

// The smallest rectangle around all pixels that differ from the background; empty when none does.
inline QRect inked(const QImage& image, QColor background = Qt::transparent) {
    QRect result;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != background) result |= QRect(x, y, 1, 1);
    return result;
}

// Near enough for colours that went through premultiplication.
inline bool isNear(const QColor& a, const QColor& b, int tolerance = 2) {
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance && std::abs(a.alpha() - b.alpha()) <= tolerance;
}

}  // namespace picture
