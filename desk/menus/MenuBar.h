// The menu bar of every screen: at the left the menus of the frontmost application, at the right the items that applications have put there. A press on a title opens its menu in the
// MenuLayer, one on an item asks the item's application for it; moving over another one while a menu is open opens that one's instead.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/menus/BarItem.h"
#include "desk/menus/MenuBarView.h"
#include "desk/windows/Surface.h"
#include "platform/Geometry.h"
#include "platform/Menus.h"
#include "platform/Screens.h"
#include "platform/Text.h"
#include "views/LaidOutView.h"

namespace desk {

class Displays;
class MenuLayer;
class Processes;
class WallClock;
class WindowStack;

class MenuBar final : public Surface {
public:
    MenuBar(WallClock& theClock, Displays& theDisplays, WindowStack& theWindows, Processes& theProcesses,
            MenuLayer& theMenus, const platform::Appearance& theAppearance, platform::TextSystem& theText)
        : clock(theClock),
          displays(theDisplays),
          windows(theWindows),
          processes(theProcesses),
          menus(theMenus),
          appearance(theAppearance),
          text(theText) {}

    // In a strip there on the screens, with as many titles as there is room for beside the items; see MenuBarView.h.
    views::LaidOutView shown(const platform::CGRect& strip) const;

    // In order of adding, which is from the right.
    const std::vector<std::shared_ptr<BarItem>>& items() const { return added; }
    void add(const std::shared_ptr<BarItem>& item);
    void remove(const BarItem& item);
    void applicationEnded(std::int32_t owner);
    // On the first screen that shows it; empty where none does.
    std::optional<platform::CGRect> frameOf(const BarItem& item) const;
    // Below it, where it was pressed. The answer is MenuLayer's.
    std::uint64_t openMenuOf(const BarItem& item, std::vector<platform::MenuItem> entries);

    bool covers(const platform::CGPoint& point) const override;
    std::optional<std::int32_t> take(const platform::NSEvent& event) override;
    void mouseIsAt(const platform::CGPoint& point) override;

private:
    struct Place {
        platform::CGRect strip;
        std::string id;
        platform::CGRect box;  // on the screen

        bool isIn(const platform::CGRect& thatStrip, const std::string& thatId) const {
            return strip == thatStrip && id == thatId;
        }
    };

    std::vector<platform::CGRect> strips() const;
    std::optional<Place> placeAt(const platform::CGPoint& point) const;
    // By screens.
    std::vector<Place> placesOf(const BarItem& item) const;
    const BarItem* itemAt(const Place& place) const;
    void open(const Place& place);
    bool isOpen() const;

    WallClock& clock;
    Displays& displays;
    WindowStack& windows;
    Processes& processes;
    MenuLayer& menus;
    const platform::Appearance& appearance;
    platform::TextSystem& text;
    std::vector<std::shared_ptr<BarItem>> added;
    Place pressed;  // at last
    std::uint64_t openMenu = 0;
};

}  // namespace desk
