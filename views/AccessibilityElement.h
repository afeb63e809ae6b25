// What a host shows, as assistive tools, desk scripts and tests read it: a flat list in paint order.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "views/AccessibilityRole.h"
#include "views/Layout.h"

namespace views {

struct AccessibilityElement {
    AccessibilityRole role = AccessibilityRole::group;
    std::string label;       // accessibilityLabel() if given, else the texts inside
    std::string value;       // of a text: the text; of an image, and of what has one for a label: the symbol's name
    std::string identifier;  // accessibilityIdentifier() of this or the nearest view around it that isn't an element
    std::string key;         // the nearest id() of repeated content
    std::string help;
    CGRect frame;  // view space
    CGRect seen;   // what of the frame isn't clipped away
    // Whole, in paint order. Those of all elements together are all that the host shows.
    std::vector<std::string> texts;
    std::vector<std::string> symbols;
    std::optional<bool> isOn;  // of a switch
    bool isEnabled = true;
    bool isDefault = false;
    bool isVisible = true;  // any of it, within what is around it
    bool isHidden = false;  // accessibilityHidden(): it is left out, with all that is inside
};

// Buttons, menus, texts and images outside them, and every view with an identifier.
std::vector<AccessibilityElement> accessibilityElements(const Layout& layout, CGSize size);

}  // namespace views
