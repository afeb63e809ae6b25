// What the desktop of a Machine shows at this moment, as layers back to front: windows, Dock, menu bar, popovers, tooltip, the open menu, alert. It reads the
// machine and changes nothing; drawings of Finder's windows are kept while their content stays.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "desk/display/Layer.h"
#include "desk/finder/FinderContent.h"

namespace desk {

class Machine;
struct FinderWindow;
struct ServerWindow;
struct ShownPopover;

class DesktopLayers {
public:
    // Windows that can't be seen, wholly behind another or on no screen, are left out.
    std::vector<Layer> read(Machine& machine);

private:
    struct FinderDrawing {
        FinderContent content;
        platform::ColorScheme scheme;
        SharedDrawing drawing;
    };

    void addWindows(Machine& machine, std::vector<Layer>& layers);
    static void addScreenFurniture(Machine& machine, std::size_t screen, std::vector<Layer>& layers);
    static void addMenus(Machine& machine, std::vector<Layer>& layers);
    static void addAlert(Machine& machine, std::vector<Layer>& layers);

    static Layer applicationWindow(Machine& machine, const ServerWindow& window, bool isActive);
    Layer foreignWindow(Machine& machine, const ServerWindow& window, bool isActive);
    SharedDrawing finderDrawing(Machine& machine, const FinderWindow& window, bool isActive);

    std::map<std::int64_t, FinderDrawing> finderDrawings;
};

}  // namespace desk
