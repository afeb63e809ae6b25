// How a control looks and whether it reacts, as the views around it have it. What it does is its own business.
#pragma once

#include <cstdint>

namespace views {

enum class ButtonStyle : std::uint8_t { plain, bordered };
enum class KeyboardShortcut : std::uint8_t { none, defaultAction };

struct ControlState {
    bool isEnabled = true;
    ButtonStyle style = ButtonStyle::plain;
    KeyboardShortcut shortcut = KeyboardShortcut::none;

    bool isBordered() const { return style == ButtonStyle::bordered; }
    bool isDefault() const { return shortcut == KeyboardShortcut::defaultAction; }
};

}  // namespace views
