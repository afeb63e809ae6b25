// The small label that says what a control does once the mouse has rested on it for a second. It goes when the mouse leaves what it speaks of, at a press, a key or a turn of
// the wheel, and when something comes to stand in between. The display reads what is shown from here.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "desk/windows/Surface.h"
#include "platform/Drawing.h"
#include "platform/Geometry.h"

namespace desk {

class Machine;

class ToolTips final : public Surface {
public:
    explicit ToolTips(Machine& theMachine) : machine(theMachine) {}
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

    Machine& machine;
    std::optional<std::uint64_t> waiting;  // the machine's item that shows it
    std::optional<Subject> told;
    std::optional<Subject> dismissed;
    platform::CGRect place;
};

}  // namespace desk
