// The menu bar's left side: the menus of the frontmost application, where their titles stand and what they hold. A press on a title opens its menu in the MenuLayer; moving over
// another title while one is open opens that one instead.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "desk/windows/Surface.h"
#include "platform/Geometry.h"
#include "platform/Menus.h"
#include "platform/Text.h"
#include "views/LaidOutView.h"

namespace desk {

class Machine;
struct Process;

class MenuBar final : public Surface {
public:
    explicit MenuBar(Machine& theMachine) : machine(theMachine) {}

    // In a strip there on the screens, with as many titles as there is room for; see MenuBarView.h.
    views::LaidOutView shown(const platform::CGRect& strip) const;

    bool covers(const platform::CGPoint& point) const override;
    std::optional<std::int32_t> take(const platform::NSEvent& event) override;
    void mouseIsAt(const platform::CGPoint& point) override;

private:
    struct Place {
        platform::CGRect strip;
        std::size_t title;
        platform::CGRect box;  // on the screen
    };

    std::optional<Place> titleAt(const platform::CGPoint& point) const;
    void open(const Place& place);
    bool isOpen() const;

    Machine& machine;
    platform::CGRect openStrip;
    std::size_t openTitle = 0;
    std::uint64_t openMenu = 0;
};

// Of that menu while that application is frontmost; empty where there is none.
std::vector<platform::MenuItem> menuBarItems(Machine& machine, const Process& frontmost, const std::string& title);
std::vector<std::string> menuBarMenus(Machine& machine, const Process& frontmost);

}  // namespace desk
