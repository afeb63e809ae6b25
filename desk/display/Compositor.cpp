#include "desk/display/Compositor.h"

#include <QPainter>
#include <QString>
#include <algorithm>
#include <cmath>

#include "desk/Machine.h"
#include "desk/display/Scene.h"
#include "desk/display/Visibility.h"
#include "desk/display/WindowChrome.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;
using platform::NSScreen;

constexpr QColor noScreen(0x0B, 0x0B, 0x0D);
constexpr double mostPixels = 200e6;

CGRect boundingBox(const std::vector<NSScreen>& screens) {
    if (screens.empty()) return CGRectMake(0, 0, 1, 1);
    CGRect box = screens.front().frame;
    for (const NSScreen& screen : screens) {
        const double x = std::min(box.minX(), screen.frame.minX());
        const double y = std::min(box.minY(), screen.frame.minY());
        box = CGRectMake(x, y, std::max(box.maxX(), screen.frame.maxX()) - x,
                         std::max(box.maxY(), screen.frame.maxY()) - y);
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

Palette paletteOf(const Machine& machine) {
    Palette palette;
    palette.scheme = machine.appearance.colorScheme.get();
    return palette;
}

}  // namespace

bool savePng(const QImage& image, const std::string& file) {
    return !image.isNull() && image.save(QString::fromStdString(file), "PNG");
}

QImage Compositor::compose(Machine& machine, double scale) {
    const std::vector<NSScreen>& screens = machine.displays.screens();
    const CGRect box = boundingBox(screens);
    QImage image = emptyPicture(box.size, scale, noScreen);
    if (image.isNull()) return image;
    QPainter target(&image);
    Scene scene{image, target, paletteOf(machine), scale, {box.minX(), box.maxY()}};
    QRegion lit;
    for (const NSScreen& screen : screens) {
        const QRect area = scene.pixels(screen.frame);
        target.drawImage(area.topLeft(), desktop.image(area.size(), scene.palette.scheme));
        lit += area;
    }
    target.setClipRegion(lit);
    paintWindows(machine, scene);
    for (std::size_t i = 0; i < screens.size(); ++i) paintScreenFurniture(machine, scene, i);
    paintMenus(machine, scene);
    paintAlert(machine, scene);
    return image;
}

QImage Compositor::composeWindow(Machine& machine, std::int64_t number, double scale) {
    const ServerWindow* window = machine.windows.find(number);
    if (window == nullptr || window->window == nullptr || window->window->contentView() == nullptr) return {};
    const QImage* kept = picture(*window, paletteOf(machine), scale);
    return kept == nullptr ? QImage() : *kept;
}

// Empty when the window is too small or too large for a picture.
const QImage* Compositor::picture(const ServerWindow& window, const Palette& palette, double scale) {
    platform::ContentView& content = *window.window->contentView();
    const platform::WindowSettings& settings = window.window->settings();
    const double titleBar = (settings.styleMask & platform::NSWindowStyleMask::titled) != 0 ? windowTitleBarHeight : 0;
    const platform::CGSize size{window.frame.width(), window.frame.height() - titleBar};
    const platform::Drawing& drawing = content.drawing();
    const std::uint64_t version = content.drawingVersion();

    Picture& kept = pictures[window.number];
    const QSize pixels(static_cast<int>(std::lround(size.width * scale)),
                       static_cast<int>(std::lround(size.height * scale)));
    if (kept.image.size() == pixels && kept.version == version && kept.palette == palette && kept.scale == scale &&
        kept.background == settings.backgroundColor)
        return &kept.image;

    kept = {version, palette, scale, settings.backgroundColor,
            emptyPicture(size, scale, palette.resolve(settings.backgroundColor))};
    if (kept.image.isNull()) return nullptr;
    ++(settings.isPanel ? paints.barPaints : paints.windowPaints);
    QPainter target(&kept.image);
    painter.paint(target, drawing, palette, scale);
    return &kept.image;
}

}  // namespace desk
