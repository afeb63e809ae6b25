// What an element is to assistive tools, scripts and tests.
// It says nothing of how the element looks.
#pragma once

#include <cstdint>

namespace views {

enum class AccessibilityRole : std::uint8_t {
    group,
    staticText,
    image,
    button,
    menuButton,
    textField,
    link,
    switchControl,
    scrollArea
};

}  // namespace views
