// What the desktop of a Machine shows at this moment, as layers back to front: windows, Dock, menu bar, popovers, tooltip, the open menu, alert. It reads the
// machine and changes nothing; drawings of Finder's windows are kept while their content stays.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "desk/display/DesktopContents.h"
#include "desk/finder/FinderContent.h"

namespace desk {

class Machine;
struct FinderWindow;
struct ServerWindow;
struct ShownPopover;

class DesktopLayers {
public:
    explicit DesktopLayers(Machine& theMachine) : machine(theMachine) {}

    // Windows that can't be seen, wholly behind another or on no screen, are left out.
    DesktopContents read();
    // Of a launched application's window; empty for any other number.
    std::optional<Layer::Content> contentOf(std::int64_t number);

private:
    struct FinderDrawing {
        FinderContent content;
        platform::ColorScheme scheme;
        SharedDrawing drawing;
    };

    void addWindows(std::vector<Layer>& layers);
    void addScreenFurniture(std::size_t screen, std::vector<Layer>& layers);
    void addMenus(std::vector<Layer>& layers);
    void addAlert(std::vector<Layer>& layers);

    Layer applicationWindow(const ServerWindow& window, bool isActive);
    Layer foreignWindow(const ServerWindow& window, bool isActive);
    SharedDrawing finderDrawing(const FinderWindow& window, bool isActive);

    Machine& machine;
    std::map<std::int64_t, FinderDrawing> finderDrawings;
};

}  // namespace desk
