#include "views/MenuItems.h"

#include <algorithm>
#include <variant>

namespace views {

namespace {

void addLabel(const View& view, platform::MenuItem& item) {
    if (const std::string* text = view.node->shownText()) item.title += (item.title.empty() ? "" : " ") + *text;
    if (const std::string* symbol = view.node->shownSymbol(); symbol != nullptr && item.symbol.empty())
        item.symbol = *symbol;
    for (const View& child : view.children) addLabel(child, item);
}

bool isDisabled(const View& view) {
    return std::any_of(view.modifiers.begin(), view.modifiers.end(), [](const Modifier& modifier) {
        const auto* disabled = std::get_if<Disabled>(&modifier);
        return disabled != nullptr && disabled->value;
    });
}

}  // namespace

std::vector<platform::MenuItem> menuItems(const View& content) {
    std::vector<platform::MenuItem> items;
    addMenuItemsOf(content, items);
    return items;
}

void addMenuItemsOf(const View& view, std::vector<platform::MenuItem>& items) {
    const std::size_t before = items.size();
    view.node->addMenuItems(view, items);
    if (!isDisabled(view)) return;
    for (std::size_t index = before; index < items.size(); ++index) items[index].enabled = false;
}

platform::MenuItem labelledMenuItem(const View& view) {
    platform::MenuItem item;
    addLabel(view, item);
    item.enabled = false;
    return item;
}

}  // namespace views
