// Composes what the screens of a Machine show into one picture: desktop, windows back to front, Dock, menu bar, popovers, the open menu, alert. Windows of launched applications are painted when
// their drawing has changed and copied otherwise; pictures of windows that can't be seen are dropped. It changes nothing on the machine.
#pragma once

#include <QImage>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "desk/display/DesktopPicture.h"
#include "desk/display/DrawingBuilder.h"
#include "desk/display/FinderContent.h"
#include "desk/display/Painter.h"
#include "desk/display/Palette.h"
#include "desk/display/WindowShadow.h"
#include "platform/Geometry.h"
#include "platform/Screens.h"

namespace desk {

class Machine;
struct DisplayOptions;
struct FinderWindow;
struct Scene;
struct ServerWindow;
struct ShownPopover;

// PNG; false when it couldn't be written.
bool savePng(const QImage& image, const std::string& file);

class Compositor {
public:
    // `scale` is pixels a point. The picture covers the bounding box of all screens, dark where no screen is; a single dark point without any screen; null
    // when it would be too large to hold.
    QImage compose(Machine& machine, double scale);
    // One window of a launched application alone, on nothing; null for any other number.
    QImage composeWindow(Machine& machine, std::int64_t number, double scale);

    // Since the start.
    struct Counts {
        std::int64_t barPaints = 0;     // panels painted anew
        std::int64_t windowPaints = 0;  // ordinary windows of launched applications
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
    struct FinderDrawing {
        FinderContent content;
        platform::ColorScheme scheme;
        platform::Drawing drawing;
    };

    void paintWindows(Machine& machine, Scene& scene);
    void paintWindow(Machine& machine, Scene& scene, const ServerWindow& window, bool isActive);
    void paintApplicationWindow(Machine& machine, Scene& scene, const ServerWindow& window, bool isActive);
    void paintForeignWindow(Machine& machine, Scene& scene, const ServerWindow& window, bool isActive);
    void paintFramed(Scene& scene, const platform::CGRect& frame, bool isActive, const platform::Drawing& drawing);
    void paintScreenFurniture(Machine& machine, Scene& scene, std::size_t screen);
    void paintAlert(Machine& machine, Scene& scene);
    void paintMenus(Machine& machine, Scene& scene);
    void paintToolTip(Machine& machine, Scene& scene);
    void paintPopover(Scene& scene, const ShownPopover& shown);

    const platform::Drawing& finderDrawing(Machine& machine, const FinderWindow& window, platform::CGSize size,
                                           bool isActive);
    platform::Drawing foreignDrawing(Machine& machine, const ServerWindow& window, bool isActive);
    const QImage* picture(const ServerWindow& window, const Palette& palette, double scale);

    Painter painter;
    DesktopPicture desktop;
    WindowShadow shadow;
    FinderContentReader finderReader;
    std::map<std::int64_t, Picture> pictures;
    std::map<std::int64_t, FinderDrawing> finderDrawings;
    Counts paints;
};

}  // namespace desk
