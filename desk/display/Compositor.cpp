#include "desk/display/Compositor.h"

#include <QPainter>
#include <QString>
#include <algorithm>
#include <cmath>
#include <set>

#include "desk/display/CornerRounder.h"
#include "desk/display/Scene.h"
#include "desk/look/WindowFrameView.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;

constexpr QColor noScreen(0x0B, 0x0B, 0x0D);
constexpr double mostPixels = 200e6;

CGRect boundingBox(const std::vector<CGRect>& screens) {
    if (screens.empty()) return CGRectMake(0, 0, 1, 1);
    CGRect box = screens.front();
    for (const CGRect& screen : screens) {
        const double x = std::min(box.minX(), screen.minX());
        const double y = std::min(box.minY(), screen.minY());
        box = CGRectMake(x, y, std::max(box.maxX(), screen.maxX()) - x, std::max(box.maxY(), screen.maxY()) - y);
    }
    return box;
}

QImage emptyPicture(platform::CGSize size, double scale, const QColor& color) {
    const double width = std::round(size.width * scale);
    const double height = std::round(size.height * scale);
    if (!(width >= 1) || !(height >= 1) || !(width * height <= mostPixels)) return {};
    QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

Palette paletteOf(platform::ColorScheme scheme) {
    Palette palette;
    palette.scheme = scheme;
    return palette;
}

// What no one sees through: all but the corners, and a last row or column that is covered in part.
QRegion opaquePart(const Scene& scene, const Layer& layer) {
    QRect frame = scene.pixels(layer.frame);
    const double radius = layer.cornerRadius * scene.scale;
    const int corner = radius > 0 ? CornerRounder::squareSize(frame, radius) : 0;
    frame.setWidth(static_cast<int>(layer.frame.width() * scene.scale));
    frame.setHeight(static_cast<int>(layer.frame.height() * scene.scale));
    return QRegion(frame.adjusted(corner, 0, -corner, 0)) + QRegion(frame.adjusted(0, corner, 0, -corner));
}

}  // namespace

bool savePng(const QImage& image, const std::string& file) {
    return !image.isNull() && image.save(QString::fromStdString(file), "PNG");
}

QImage Compositor::compose(const DesktopContents& contents, double scale) {
    DesktopFrame frame;
    update(contents, frame, scale);
    return frame.image;
}

QRegion Compositor::update(DesktopContents contents, DesktopFrame& frame, double scale) {
    const std::vector<CGRect>& screens = contents.screens;
    std::vector<Layer>& layers = contents.layers;
    dropPicturesBut(layers);

    const Palette palette = paletteOf(contents.scheme);
    const CGRect box = boundingBox(screens);
    QRegion damage;
    if (frame.image.isNull() || frame.scale != scale || frame.palette != palette || frame.screens != screens) {
        frame.image = emptyPicture(box.size, scale, noScreen);
        frame.scale = scale;
        frame.palette = palette;
        frame.screens = screens;
        damage = frame.image.rect();
    } else {
        const auto pixels = [&](const CGRect& place) { return pixelsOf(place, {box.minX(), box.maxY()}, scale); };
        // A pixel more: frames between pixels are rounded one by one.
        for (const CGRect& place : differences(frame.layers, layers))
            damage += pixels(place).adjusted(-1, -1, 1, 1) & frame.image.rect();
    }
    frame.layers = std::move(layers);
    if (frame.image.isNull() || damage.isEmpty()) return {};
    paintLayers(frame, damage);
    ++paints.updates;
    return damage;
}

void Compositor::paintLayers(DesktopFrame& frame, const QRegion& region) {
    const CGRect box = boundingBox(frame.screens);
    QPainter target(&frame.image);
    Scene scene{frame.image, target, frame.palette, frame.scale, {box.minX(), box.maxY()}};

    QRegion lit;
    for (const CGRect& screen : frame.screens) lit += scene.pixels(screen);
    // Front to back, what each layer shows of what is left to paint.
    QRegion left = region & lit;
    std::vector<QRegion> parts(frame.layers.size());
    for (std::size_t i = frame.layers.size(); i-- > 0 && !left.isEmpty();) {
        const Layer& layer = frame.layers[i];
        parts[i] = left & scene.pixels(layer.extent()).adjusted(-1, -1, 1, 1);
        if (layer.isOpaque) left -= opaquePart(scene, layer);
    }
    for (const CGRect& screen : frame.screens) {
        const QRect area = scene.pixels(screen);
        target.setClipRegion(left & area);
        target.drawImage(area.topLeft(), desktop.image(area.size(), scene.palette.scheme));
    }
    for (std::size_t i = 0; i < frame.layers.size(); ++i) {
        if (parts[i].isEmpty()) continue;
        target.setClipRegion(parts[i]);
        paintLayer(scene, frame.layers[i]);
    }
}

void Compositor::paintLayer(Scene& scene, const Layer& layer) {
    if (layer.popover) {
        paintPopover(scene, layer);
        return;
    }
    const QImage* content = layer.content ? picture(*layer.content, scene.palette, scene.scale) : nullptr;
    if (layer.content && content == nullptr) return;
    const QRect frame = scene.pixels(layer.frame);
    const auto paintDrawing = [&](const SharedDrawing& drawing) {
        if (drawing) painter.paint(scene.painter, *drawing, scene.palette, scene.scale, frame.topLeft());
    };
    if (layer.shadow) shadow.paint(scene.painter, frame, *layer.shadow, scene.scale);
    std::optional<CornerRounder> rounder;
    if (layer.cornerRadius > 0) rounder.emplace(scene.image, frame, layer.cornerRadius * scene.scale);
    paintDrawing(layer.background);
    if (content != nullptr)
        scene.painter.drawImage(QPoint(frame.left(), frame.bottom() + 1 - content->height()), *content);
    if (rounder) rounder->restore(scene.painter);
    paintDrawing(layer.foreground);
}

QImage Compositor::composeWindow(const Layer::Content& content, platform::ColorScheme scheme, double scale) {
    const QImage* kept = picture(content, paletteOf(scheme), scale);
    return kept == nullptr ? QImage() : *kept;
}

void Compositor::dropPicturesBut(const std::vector<Layer>& layers) {
    std::set<std::int64_t> shown;
    for (const Layer& layer : layers) shown.insert(layer.id);
    std::erase_if(pictures, [&](const auto& entry) { return !shown.contains(entry.first); });
}

// Empty when the window is too small or too large for a picture.
const QImage* Compositor::picture(const Layer::Content& content, const Palette& palette, double scale) {
    Picture& kept = pictures[content.window];
    const QSize pixels(static_cast<int>(std::lround(content.size.width * scale)),
                       static_cast<int>(std::lround(content.size.height * scale)));
    if (kept.image.size() == pixels && kept.version == content.version && kept.palette == palette &&
        kept.scale == scale && kept.background == content.background)
        return &kept.image;

    kept = {content.version, palette, scale, content.background,
            emptyPicture(content.size, scale, palette.resolve(content.background))};
    if (kept.image.isNull()) return nullptr;
    ++(content.isPanel ? paints.barPaints : paints.windowPaints);
    QPainter target(&kept.image);
    painter.paint(target, content.view->drawing(), palette, scale);
    return &kept.image;
}

}  // namespace desk
