// The alert that is up: it stands above everything and has the presses on itself. A button acts when the press is released over it and the same alert is still up; Return and Escape press the buttons that the alert names.
// What pressing does is said by who put the alert up.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "desk/system/ShownAlert.h"
#include "desk/windows/Surface.h"

namespace desk {

class Displays;

class AlertSurface final : public Surface {
public:
    AlertSurface(Alerts& theAlerts, Displays& theDisplays, const platform::Appearance& theAppearance,
                 platform::TextSystem& theText)
        : alerts(theAlerts), displays(theDisplays), appearance(theAppearance), text(theText) {}

    // Empty when none is up, and without a screen.
    std::optional<ShownAlert> shown() const;

    bool covers(const platform::CGPoint& point) const override;
    std::optional<std::int32_t> take(const platform::NSEvent& event) override;

private:
    bool takeKey(const platform::NSEvent& event);
    struct PressedButton {
        std::uint64_t alert;
        std::string label;
        bool operator==(const PressedButton&) const = default;
    };
    std::optional<PressedButton> buttonAt(const platform::CGPoint& point) const;

    Alerts& alerts;
    Displays& displays;
    const platform::Appearance& appearance;
    platform::TextSystem& text;
    std::optional<PressedButton> pressed;
};

}  // namespace desk
