#include "desk/display/Painter.h"

#include <QPainter>
#include <QPainterPath>
#include <QRect>
#include <cmath>
#include <optional>
#include <variant>
#include <vector>

#include "desk/display/DecodedImage.h"
#include "desk/display/ShapeShadow.h"

namespace desk {

// One pass over one drawing.
class Painter::Run {
public:
    Run(Painter& thePainter, QPainter& theTarget, const Palette& thePalette, double theScale, QPoint theOrigin)
        : owner(thePainter), target(theTarget), palette(thePalette), scale(theScale), origin(theOrigin) {}

    void paint(const platform::Drawing& drawing) {
        target.save();
        for (const platform::DrawOperation& operation : drawing.operations)
            std::visit([this](const auto& each) { paint(each); }, operation);
        target.restore();
    }

private:
    struct Clip {
        QRect rect;         // within all clips around it
        QPainterPath path;  // empty: the rectangle alone
        bool isRounded() const { return !path.isEmpty(); }
    };

    QPointF device(const platform::CGPoint& point) const {
        return {origin.x() + point.x * scale, origin.y() + point.y * scale};
    }

    QRectF device(const platform::CGRect& rect) const {
        return {origin.x() + rect.minX() * scale, origin.y() + rect.minY() * scale, rect.width() * scale,
                rect.height() * scale};
    }

    void paint(const platform::FillShape& fill) {
        const platform::RoundedShape& shape = fill.shape;
        if (fill.shadow) paintShadow(shape, *fill.shadow);
        owner.shapes.fill(target, device(shape.rect), shape.radius * scale, shape.corners, palette.resolve(fill.color));
    }

    void paintShadow(const platform::RoundedShape& shape, const platform::Shadow& shadow) {
        const QRectF place = device(shape.rect).translated(shadow.offset.x * scale, shadow.offset.y * scale);
        ShapeShadow{place, shape.radius * scale, shadow.radius * scale, palette.resolve(shadow.color)}.paint(target);
    }

    void paint(const platform::StrokeShape& stroke) {
        const platform::RoundedShape& shape = stroke.shape;
        owner.shapes.stroke(target, device(shape.rect), shape.radius * scale, shape.corners, stroke.lineWidth * scale,
                            palette.resolve(stroke.color));
    }

    void paint(const platform::StrokePath& line) {
        if (line.points.empty()) return;
        QPainterPath path;
        path.moveTo(device(line.points.front()));
        for (const platform::CGPoint& point : line.points) path.lineTo(device(point));
        const bool hasRoundCap = line.cap == platform::LineCap::round;
        const bool hasRoundJoin = line.join == platform::LineJoin::round;
        target.setRenderHint(QPainter::Antialiasing);
        target.strokePath(path,
                          QPen(palette.resolve(line.color), line.lineWidth * scale, Qt::SolidLine,
                               hasRoundCap ? Qt::RoundCap : Qt::FlatCap, hasRoundJoin ? Qt::RoundJoin : Qt::MiterJoin));
    }

    // On whole device pixels: a baseline between two rows blurs the feet of all letters.
    void paint(const platform::DrawText& text) {
        const QColor color = palette.resolve(text.color);
        if (text.text.empty() || color.alpha() == 0) return;
        if (const ShapedText* line = owner.texts.longLine(text.text, text.font, scale)) {
            target.save();
            target.setPen(color);
            target.translate(start(text, line->metrics()));
            target.scale(scale, scale);
            line->paint(target);
            target.restore();
            return;
        }
        const TextPicture picture = owner.texts.text(text.text, text.font, color, scale);
        target.drawImage(start(text, picture.metrics) + picture.offset, picture.image);
    }

    QPoint start(const platform::DrawText& text, const platform::FontMetrics& line) const {
        const double top = text.rect.minY() + (text.rect.height() - line.lineHeight()) / 2;
        return {static_cast<int>(std::lround(origin.x() + text.rect.minX() * scale)),
                static_cast<int>(std::lround(origin.y() + (top + line.ascent) * scale))};
    }

    void paint(const platform::DrawSymbol& symbol) {
        const QImage image = owner.texts.symbol(symbol.name, symbol.font, palette.resolve(symbol.color), scale);
        if (image.isNull()) return;
        const QPointF center = device(symbol.rect).center();
        target.drawImage(QPoint(static_cast<int>(std::lround(center.x() - image.width() / 2.0)),
                                static_cast<int>(std::lround(center.y() - image.height() / 2.0))),
                         image);
    }

    // A picture in a rounded clip is painted as the clip's shape: only so its edge is smooth.
    void paint(const platform::DrawImage& drawn) {
        const auto* decoded = dynamic_cast<const DecodedImage*>(drawn.image.pixels());
        const QRectF rect = device(drawn.rect);
        if (decoded == nullptr || rect.isEmpty()) return;
        const bool isHigh = drawn.interpolation == platform::ImageInterpolation::high;
        const QImage image =
            isHigh ? decoded->image.scaled(rect.size().toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                   : decoded->image;
        QBrush brush(image);
        brush.setTransform(QTransform::fromTranslate(rect.left(), rect.top())
                               .scale(rect.width() / image.width(), rect.height() / image.height()));
        QPainterPath shape;
        shape.addRect(rect);
        target.restore();
        target.save();
        if (!clips.empty()) target.setClipRect(clips.back().rect, Qt::IntersectClip);
        if (!clips.empty() && clips.back().isRounded()) shape = shape.intersected(clips.back().path);
        target.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        target.fillPath(shape, brush);
        applyClip();
    }

    void paint(const platform::BeginClip& begin) {
        const QRectF exact = device(begin.rect);
        Clip clip{exact.toAlignedRect(), {}};
        if (!clips.empty()) clip.rect &= clips.back().rect;
        if (begin.radius > 0)
            clip.path = RoundedCorner::of(exact.size(), begin.radius * scale, begin.corners).path(exact);
        clips.push_back(std::move(clip));
        applyClip();
    }

    void paint(const platform::EndClip&) {
        if (clips.empty()) return;
        clips.pop_back();
        applyClip();
    }

    void applyClip() {
        target.restore();
        target.save();
        for (const Clip& clip : clips)
            if (clip.isRounded()) target.setClipPath(clip.path, Qt::IntersectClip);
        if (!clips.empty()) target.setClipRect(clips.back().rect, Qt::IntersectClip);
    }

    Painter& owner;
    QPainter& target;
    const Palette& palette;
    const double scale;
    const QPoint origin;
    std::vector<Clip> clips;
};

void Painter::paint(QPainter& painter, const platform::Drawing& drawing, const Palette& palette, double scale,
                    QPoint origin) {
    Run(*this, painter, palette, scale, origin).paint(drawing);
}

}  // namespace desk
