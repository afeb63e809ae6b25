#include "views/MenuItems.h"

#include <string>
#include <utility>

namespace views {

namespace {

using platform::MenuItem;

// The texts and the first symbol inside.
void addLabel(const View& view, MenuItem& item) {
    if (view.kind == ViewKind::text) {
        if (!item.title.empty()) item.title += ' ';
        item.title += view.as<TextContent>().text;
    }
    if (view.kind == ViewKind::image && item.symbol.empty()) item.symbol = view.as<ImageContent>().systemName;
    for (const View& child : view.children) addLabel(child, item);
}

MenuItem labelled(const View& view) {
    MenuItem item;
    addLabel(view, item);
    item.enabled = false;
    return item;
}

void collect(const View& view, std::vector<MenuItem>& items) {
    switch (view.kind) {
    case ViewKind::button:
        items.push_back(labelled(view));
        items.back().enabled = true;
        items.back().action = view.as<ActionContent>().action;
        break;
    case ViewKind::divider:
        items.emplace_back().isSeparator = true;
        break;
    case ViewKind::text:
    case ViewKind::image:
    case ViewKind::hStack:
        items.push_back(labelled(view));
        break;
    default:
        for (const View& child : view.children) collect(child, items);
        break;
    }
}

}  // namespace

std::vector<MenuItem> menuItems(const View& content) {
    std::vector<MenuItem> items;
    collect(content, items);
    return items;
}

}  // namespace views
