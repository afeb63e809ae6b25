// The small label that says what a control does once the mouse has rested on it for a second. It goes when the mouse leaves what it speaks of, at a press, a key or a turn of
// the wheel, and when something comes to stand in between. The display reads what is shown from here.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desk/windows/Surface.h"
#include "platform/Geometry.h"
#include "platform/Text.h"

namespace desk {

class MenuLayer;
class Pointer;
class Scheduler;
class WindowStack;

class ToolTips final : public Surface {
public:
    // The surfaces are those that stand before the windows.
    ToolTips(Scheduler& theScheduler, WindowStack& theWindows, const Pointer& thePointer, const MenuLayer& theMenus,
             std::vector<const Surface*> theSurfaces, platform::TextSystem& theText)
        : scheduler(theScheduler),
          windows(theWindows),
          pointer(thePointer),
          menus(theMenus),
          inFront(std::move(theSurfaces)),
          text(theText) {}
    ToolTips(const ToolTips&) = delete;
    ToolTips& operator=(const ToolTips&) = delete;

    struct ShownToolTip {
        std::string text;
        platform::CGRect frame;  // AppKit screen points
    };
    std::optional<ShownToolTip> shown() const;

    bool covers(const platform::CGPoint& /*point*/) const override { return false; }
    // It takes none. Who presses or types knows what it does: nothing more is said of it until the mouse has left it.
    std::optional<std::int32_t> take(const platform::NSEvent& event) override;

private:
    // What is under the mouse and has something to say.
    struct Subject {
        std::int64_t window = 0;
        std::string text;
        friend bool operator==(const Subject&, const Subject&) = default;
    };

    // None while a button is held.
    std::optional<Subject> subject() const;
    std::optional<Subject> subjectUnderMouse() const;
    void mouseMoved();
    void dismiss();
    void show();
    void hide();

    Scheduler& scheduler;
    WindowStack& windows;
    const Pointer& pointer;
    const MenuLayer& menus;
    const std::vector<const Surface*> inFront;
    platform::TextSystem& text;
    std::optional<std::uint64_t> waiting;  // the scheduler's item that shows it
    std::optional<Subject> told;
    std::optional<Subject> dismissed;
    platform::CGRect place;
};

}  // namespace desk
