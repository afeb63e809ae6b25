// What stands above all windows: the open menu, of which there is at most one, and the popovers. It is asked first about every event, and decides what a press, a key or
// a move of the mouse does to them; an action that was chosen runs in a turn of the application that opened the menu, or of the machine for Finder and others that it plays itself. The display reads what is open from here.
//
// A menu's press:
//   press on a button       the application opens the menu; the mouse stays held
//   release on the button   the menu stays open                        (click, then click)
//   release on an entry     the entry is chosen                        (press, drag, release)
//   release elsewhere       the menu closes
//   press outside           the menu closes; press and release go no further
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desk/menus/OpenMenu.h"
#include "desk/menus/OpenPopover.h"
#include "desk/menus/Placement.h"
#include "desk/windows/Surface.h"
#include "platform/Events.h"

namespace desk {

class Applications;
class Displays;
class KeyboardFocus;
class Pointer;
class Scheduler;
class WindowStack;
enum class MouseButton;

struct ShownPopover {
    const OpenPopover* popover;
    PopoverPlace place;
};

class MenuLayer final : public Surface {
public:
    MenuLayer(Scheduler& theScheduler, Displays& theDisplays, WindowStack& theWindows, Applications& theApplications,
              Pointer& thePointer, const KeyboardFocus& theKeyboard, platform::TextSystem& theText)
        : scheduler(theScheduler),
          displays(theDisplays),
          windows(theWindows),
          applications(theApplications),
          pointer(thePointer),
          keyboard(theKeyboard),
          text(theText) {}
    MenuLayer(const MenuLayer&) = delete;
    MenuLayer& operator=(const MenuLayer&) = delete;

    // A menu that is open closes when another one opens. The answer serves isOpen() and close(); a menu without entries doesn't open.
    std::uint64_t openBelow(std::int32_t owner, const platform::CGRect& anchor, std::vector<platform::MenuItem> items);
    std::uint64_t openAt(std::int32_t owner, const platform::CGPoint& point, std::vector<platform::MenuItem> items);
    bool isOpen(std::uint64_t menu) const { return tracked && tracked->number == menu; }
    void close(std::uint64_t menu);
    void closeMenu();
    // The open menu shows these from now on, from the same place; without any it closes.
    void update(std::uint64_t menu, std::vector<platform::MenuItem> items);
    // Null when none is open.
    const OpenMenu* menu() const { return tracked ? &tracked->menu : nullptr; }
    // Scrolls the open menu so that the entry can be seen.
    void reveal(std::size_t row);

    void show(const std::shared_ptr<OpenPopover>& popover);
    void hide(const OpenPopover& popover);
    // Back to front, those whose window is on screen.
    std::vector<ShownPopover> popovers() const;
    // What a popover's content can have at most there.
    platform::CGSize mostContent(const platform::CGRect& anchorOnScreen) const;

    // An open menu, wherever it is, or a popover there stands between the mouse and the windows.
    bool covers(const platform::CGPoint& point) const override;
    // The part of the screen that is nearest to the point which menus may cover.
    platform::CGRect roomAround(const platform::CGPoint& point) const;

    // An event, its location on the screen, on its way to wherever it would go. The answer is the process whose menu or popover has taken it; empty when it goes on.
    std::optional<std::int32_t> take(const platform::NSEvent& event) override;

    // Nothing more of that process is shown.
    void applicationEnded(std::int32_t owner);

private:
    using Placing = std::function<platform::CGRect(platform::CGSize size)>;
    using Taker = std::optional<std::int32_t>;
    struct Tracked {
        std::uint64_t number;
        std::int32_t owner;
        OpenMenu menu;
        Placing place;
        platform::CGRect source;                     // a release here is the end of the click that opened the menu
        std::optional<platform::CGPoint> pressedAt;  // while that click lasts
        std::string typed = {};                      // of an entry's title
        platform::Date lastTyped = {};
    };
    struct HeldPress {
        std::int32_t owner;
        std::weak_ptr<platform::ContentView> content;  // of the popover that was pressed, if one was
        platform::CGPoint origin;
    };
    std::optional<HeldPress>& held(MouseButton button) { return heldPresses[static_cast<std::size_t>(button)]; }

    // `button`: whose press, if it is held, opened it and goes on in it.
    std::uint64_t open(std::int32_t owner, std::vector<platform::MenuItem> items, const platform::CGRect& source,
                       Placing place, MouseButton button);
    OpenMenu placed(std::vector<platform::MenuItem> items, const Placing& place) const;
    Taker mouseDown(const platform::NSEvent& event);
    Taker mouseDragged(const platform::NSEvent& event);
    Taker mouseUp(const platform::NSEvent& event);
    Taker mouseMoved(const platform::NSEvent& event);
    Taker scrollWheel(const platform::NSEvent& event);
    Taker keyDown(const platform::NSEvent& event);
    Taker keyUp(const platform::NSEvent& event);

    void menuKey(const platform::NSEvent& event);
    void typeToSelect(const platform::NSEvent& event);
    void choose(std::size_t row);
    void hover(const platform::CGPoint& point);
    void keepScrolling();
    void stopScrolling();
    void released(const platform::CGPoint& point);

    Taker pressPopovers(const platform::NSEvent& event);
    bool isOnAnchor(const ShownPopover& shown, const platform::CGPoint& point) const;
    // A field has it, which Escape is for then.
    bool hasKeyboardFocus() const;
    void dismiss(const OpenPopover& popover);
    void sendToContent(const HeldPress& press, const platform::NSEvent& event) const;

    Scheduler& scheduler;
    Displays& displays;
    WindowStack& windows;
    Applications& applications;
    Pointer& pointer;
    const KeyboardFocus& keyboard;
    platform::TextSystem& text;
    std::optional<Tracked> tracked;
    std::uint64_t lastNumber = 0;
    std::vector<std::shared_ptr<OpenPopover>> shownPopovers;
    std::array<std::optional<HeldPress>, 2> heldPresses;  // of each button, one that was taken, until its release
    std::optional<std::pair<std::uint16_t, std::int32_t>> takenKey;  // until it goes up
    std::optional<std::uint64_t> scrolling;                          // the scheduler's item that goes on scrolling
    double scrollStep = 0;
};

}  // namespace desk
