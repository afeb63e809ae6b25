#include "desk/display/DesktopPicture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>

namespace desk {

namespace {

// A wave across the whole width: heights at the left edge, at both thirds and at the right edge, as fractions from the top.
struct Hill {
    std::array<double, 4> heights;
    QRgb light;
    QRgb dark;
};

constexpr std::array hills{
    Hill{{0.62, 0.42, 0.66, 0.48}, 0xFFA9C4E4, 0xFF2B3A5C},
    Hill{{0.72, 0.74, 0.50, 0.66}, 0xFF8FB0DA, 0xFF233150},
    Hill{{0.78, 0.66, 0.86, 0.72}, 0xFF7499CC, 0xFF1C2844},
    Hill{{0.94, 0.92, 0.76, 0.88}, 0xFF5C82BB, 0xFF151F37},
};

QPainterPath outline(const Hill& hill, QSizeF size) {
    const auto at = [&](double x, double y) { return QPointF(x * size.width(), y * size.height()); };
    QPainterPath path(at(0, 1));
    path.lineTo(at(0, hill.heights[0]));
    path.cubicTo(at(1.0 / 3, hill.heights[1]), at(2.0 / 3, hill.heights[2]), at(1, hill.heights[3]));
    path.lineTo(at(1, 1));
    path.closeSubpath();
    return path;
}

QImage draw(QSize pixels, bool isDark) {
    QImage image(pixels, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, pixels.height());
    sky.setColorAt(0, isDark ? QColor(0x10182E) : QColor(0xDDE9F7));
    sky.setColorAt(0.6, isDark ? QColor(0x33446B) : QColor(0xF6E9E1));
    painter.fillRect(image.rect(), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Hill& hill : hills) {
        const QPainterPath path = outline(hill, pixels);
        QLinearGradient slope(0, path.boundingRect().top(), 0, pixels.height());
        const QColor top(isDark ? hill.dark : hill.light);
        slope.setColorAt(0, top);
        slope.setColorAt(1, top.darker(112));
        painter.fillPath(path, slope);
    }
    return image;
}

constexpr std::size_t mostKept = 3;

}  // namespace

QImage DesktopPicture::image(QSize pixels, platform::ColorScheme scheme) {
    if (keptScheme != scheme) kept.clear();
    keptScheme = scheme;
    const auto known =
        std::find_if(kept.begin(), kept.end(), [&](const QImage& each) { return each.size() == pixels; });
    if (known != kept.end()) return *known;
    if (kept.size() == mostKept) kept.erase(kept.begin());
    return kept.emplace_back(draw(pixels, scheme == platform::ColorScheme::dark));
}

}  // namespace desk
