// A scene: an item in the menu bar that shows the label, and a menu with the content. It is a value; MenuBarExtraHost puts it up.
//
//     MenuBarExtra([this] { return Group(Text("Ready"), Divider(), Button("Quit", quit)); },
//                  Image(icon).accessibilityLabel("Orvane")).menuBarExtraStyle(MenuBarExtraStyle::menu)
#pragma once

#include <functional>
#include <utility>

#include "views/View.h"

namespace views {

enum class MenuBarExtraStyle { menu };

struct MenuBarExtra {
    // The content is evaluated each time the menu opens, and while it is open, whenever something that it observes has changed.
    MenuBarExtra(std::function<View()> theContent, View theLabel)
        : content(std::move(theContent)), label(std::move(theLabel)) {}

    // There is no other style here.
    MenuBarExtra&& menuBarExtraStyle(MenuBarExtraStyle /*style*/) && { return std::move(*this); }

    std::function<View()> content;
    View label;  // a picture, and what it is called
};

}  // namespace views
