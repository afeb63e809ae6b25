// The Dock at the lower edge of each screen: the applications that always stand in it, those that run besides, and minimised windows at its right end. An item opens when the left button is
// released over the one that was pressed. How it is drawn is said in DockView.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "desk/windows/Surface.h"
#include "platform/Geometry.h"
#include "platform/Screens.h"
#include "platform/Text.h"
#include "views/LaidOutView.h"

namespace desk {

class Disk;
class Displays;
class LaunchServices;
class Processes;
class WindowStack;

struct DockItem {
    std::string name;
    std::string path;  // of an application
    bool isRunning = false;
    std::int64_t window = 0;  // a minimised window, then there is no path
};

class Dock final : public Surface {
public:
    Dock(const Disk& theDisk, Displays& theDisplays, WindowStack& theWindows, Processes& theProcesses,
         LaunchServices& theLaunchServices, const platform::Appearance& theAppearance, platform::TextSystem& theText)
        : disk(theDisk),
          displays(theDisplays),
          windows(theWindows),
          processes(theProcesses),
          launchServices(theLaunchServices),
          appearance(theAppearance),
          text(theText) {}

    std::vector<DockItem> items() const;
    // In the strip of that size at the screen's lower edge.
    views::LaidOutView shown(platform::CGSize strip) const;

    bool covers(const platform::CGPoint& point) const override;
    std::optional<std::int32_t> take(const platform::NSEvent& event) override;

private:
    void addRunning(std::vector<DockItem>& items) const;
    // What stands there: an item's index, or the plate beside them; empty beside the Dock.
    std::string idAt(const platform::CGPoint& point) const;
    std::optional<std::size_t> itemAt(const platform::CGPoint& point) const;
    // An application comes to the front, started if it doesn't run; a window is restored. Whoever has its windows on another space is followed there.
    void open(const DockItem& item);
    void followToItsSpace(std::int32_t owner);

    const Disk& disk;
    Displays& displays;
    WindowStack& windows;
    Processes& processes;
    LaunchServices& launchServices;
    const platform::Appearance& appearance;
    platform::TextSystem& text;
    std::optional<std::size_t> pressed;
};

}  // namespace desk
