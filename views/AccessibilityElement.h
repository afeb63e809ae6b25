// What a host shows, as assistive tools, desk scripts and tests read it: a flat list in paint order.
#pragma once

#include <string>
#include <vector>

#include "views/Layout.h"

namespace views {

enum class AccessibilityRole : std::uint8_t { group, staticText, image, button, menuButton, textField };

struct AccessibilityElement {
    AccessibilityRole role = AccessibilityRole::group;
    std::string label;       // accessibilityLabel() if given, else the texts inside
    std::string value;       // of a text: the text; of an image, and of what has one for a label: the symbol's name
    std::string identifier;  // accessibilityIdentifier() of this or the nearest view around it that isn't an element
    std::string key;         // the nearest id() of repeated content
    std::string help;
    CGRect frame;  // view space
};

// Buttons, menus, texts and images outside them, and every view with an identifier.
std::vector<AccessibilityElement> accessibilityElements(const Layout& layout);

}  // namespace views
