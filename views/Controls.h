// What reacts: buttons and menus. Both look like their label alone (plain and borderless style, menu indicator hidden).
#pragma once

#include <functional>
#include <utility>

#include "views/Text.h"

namespace views {

// Acts when a press that began on it ends on it.
inline View Button(std::function<void()> action, View label) {
    View view(ViewKind::button, ActionContent{std::move(action)});
    view.children.push_back(std::move(label));
    return view;
}
inline View Button(std::string title, std::function<void()> action) {
    return Button(std::move(action), Text(std::move(title)));
}

// The entries (buttons, dividers, plain texts) are evaluated each time the menu opens.
inline View Menu(std::function<View()> entries, View label) {
    View view(ViewKind::menu, MenuContent{std::move(entries)});
    view.children.push_back(std::move(label));
    return view;
}

}  // namespace views
