#include "views/MenuItems.h"

namespace views {

namespace {

void addLabel(const View& view, platform::MenuItem& item) {
    if (const std::string* text = view.node->shownText()) item.title += (item.title.empty() ? "" : " ") + *text;
    if (const std::string* symbol = view.node->shownSymbol(); symbol != nullptr && item.symbol.empty())
        item.symbol = *symbol;
    for (const View& child : view.children) addLabel(child, item);
}

}  // namespace

std::vector<platform::MenuItem> menuItems(const View& content) {
    std::vector<platform::MenuItem> items;
    content.node->addMenuItems(content, items);
    return items;
}

platform::MenuItem labelledMenuItem(const View& view) {
    platform::MenuItem item;
    addLabel(view, item);
    item.enabled = false;
    return item;
}

}  // namespace views
