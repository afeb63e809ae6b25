// The menu bar's left side: the menus of the frontmost application, where their titles stand and what they hold. A press on a title opens its menu in the MenuLayer; moving over
// another title while one is open opens that one instead. The right side, with the clock, isn't its business.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Geometry.h"
#include "platform/Menus.h"
#include "platform/Text.h"

namespace desk {

class Machine;
struct Process;

inline constexpr platform::Font menuBarFont{13, platform::FontWeight::regular};
inline constexpr platform::Font menuBarApplicationFont{13, platform::FontWeight::bold};

struct MenuBarTitle {
    std::string text;
    platform::CGRect box;  // in the strip at the screen's upper edge, y downward
    bool isOpen = false;
};

class MenuBar {
public:
    explicit MenuBar(Machine& theMachine) : machine(theMachine) {}

    // In a strip there on the screens; the application's own name is the first. None without a frontmost application.
    std::vector<MenuBarTitle> titles(const platform::CGRect& strip) const;

    void mouseDown(const platform::CGPoint& point);
    void mouseMoved(const platform::CGPoint& point);

private:
    struct Place {
        platform::CGRect strip;
        std::size_t title;
        std::string text;
        platform::CGRect box;  // on the screen
    };

    std::optional<Place> titleAt(const platform::CGPoint& point) const;
    void open(const Place& place);
    bool isOpen() const;
    bool isOpen(const platform::CGRect& strip, const std::string& title) const;

    Machine& machine;
    platform::CGRect openStrip;
    std::string openTitle;
    std::uint64_t openMenu = 0;
};

// Of that menu while that application is frontmost; empty where there is none.
std::vector<platform::MenuItem> menuBarItems(Machine& machine, const Process& frontmost, const std::string& title);
std::vector<std::string> menuBarMenus(Machine& machine, const Process& frontmost);

}  // namespace desk
