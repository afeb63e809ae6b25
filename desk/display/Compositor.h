// Paints what the screens show into one picture, or brings an earlier picture up to date by painting what has changed. Windows of launched
// applications are painted when their drawing has changed and copied otherwise; pictures of windows that can't be seen are dropped.
#pragma once

#include <QImage>
#include <QRegion>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "desk/display/DesktopContents.h"
#include "desk/display/DesktopPicture.h"
#include "desk/display/Painter.h"
#include "desk/display/Palette.h"
#include "desk/display/WindowShadow.h"
#include "platform/Geometry.h"

namespace desk {

struct Scene;

// PNG; false when it couldn't be written.
bool savePng(const QImage& image, const std::string& file);

// A picture of the desktop and what it shows.
struct DesktopFrame {
    QImage image;
    double scale = 1;  // pixels a point
    Palette palette;
    std::vector<platform::CGRect> screens;
    std::vector<Layer> layers;  // back to front
};

class Compositor {
public:
    // `scale` is pixels a point. The picture covers the bounding box of all screens, dark where no screen is; a single dark point without any screen; null
    // when it would be too large to hold.
    QImage compose(const DesktopContents& contents, double scale);
    // Makes the frame show these contents, and answers which of its pixels were painted anew: none when nothing has changed, all of
    // a frame that is new or has another scale.
    QRegion update(DesktopContents contents, DesktopFrame& frame, double scale);
    // The content of one window of a launched application alone, on nothing.
    QImage composeWindow(const Layer::Content& content, platform::ColorScheme scheme, double scale);

    // Since the start.
    struct Counts {
        std::int64_t barPaints = 0;     // panels painted anew
        std::int64_t windowPaints = 0;  // ordinary windows of launched applications
        std::int64_t updates = 0;       // pictures of the desktop in which something was painted
    };
    const Counts& counts() const { return paints; }
    std::size_t keptPictures() const { return pictures.size(); }

private:
    struct Picture {
        std::uint64_t version = 0;
        Palette palette;
        double scale = 0;
        platform::Color background;
        QImage image;
    };

    void paintLayers(DesktopFrame& frame, const QRegion& region);
    void paintLayer(Scene& scene, const Layer& layer);
    void paintPopover(Scene& scene, const Layer& layer);
    void dropPicturesBut(const std::vector<Layer>& layers);
    const QImage* picture(const Layer::Content& content, const Palette& palette, double scale);

    Painter painter;
    DesktopPicture desktop;
    WindowShadow shadow;
    std::map<std::int64_t, Picture> pictures;
    Counts paints;
};

}  // namespace desk
