#include "views/Layout.h"

#include <algorithm>
#include <sstream>

namespace views {

namespace {

const char* nameOf(const LayoutItem& item) {
    switch (item.viewKind) {
    case ViewKind::button:
        return "button";
    case ViewKind::menu:
        return "menu";
    case ViewKind::tapGesture:
        return "tapGesture";
    case ViewKind::contextMenu:
        return "contextMenu";
    case ViewKind::popover:
        return "popover";
    case ViewKind::help:
        return "help";
    case ViewKind::accessibilityLabel:
        return "accessibilityLabel";
    case ViewKind::task:
        return "task";
    default:
        break;
    }
    switch (item.kind) {
    case ItemKind::empty:
        return "empty";
    case ItemKind::text:
        return "text";
    case ItemKind::symbol:
        return "symbol";
    case ItemKind::picture:
        return "picture";
    case ItemKind::clip:
        return "clip";
    case ItemKind::scale:
        return "scale";
    case ItemKind::shape:
        return "shape";
    case ItemKind::spacer:
        return "spacer";
    case ItemKind::divider:
        return "divider";
    case ItemKind::wrapped:
        return "wrapped";
    case ItemKind::hStack:
        return "hStack";
    case ItemKind::vStack:
        return "vStack";
    case ItemKind::layers:
        return "layers";
    case ItemKind::geometryReader:
        return "geometryReader";
    case ItemKind::passThrough:
        return "passThrough";
    case ItemKind::padding:
        return "padding";
    case ItemKind::fixedFrame:
        return "frame";
    case ItemKind::flexibleFrame:
        return "flexibleFrame";
    case ItemKind::fixedSize:
        return "fixedSize";
    case ItemKind::background:
        return "background";
    case ItemKind::overlay:
        return "overlay";
    }
    return "";
}

}  // namespace

std::string Layout::placeOf(std::int32_t index) const {
    std::string place;
    for (std::int32_t at = index; at >= 0; at = (*this)[at].parent) {
        const LayoutItem& item = (*this)[at];
        std::int32_t ordinal = 0;
        if (item.parent >= 0)
            for (std::int32_t child = (*this)[item.parent].firstChild; child != at; child = (*this)[child].nextSibling)
                ordinal += 1;
        // A key alone would be enough among its siblings, but may itself look like an ordinal.
        place += '/';
        place += item.key == nullptr ? std::to_string(ordinal) : "#" + *item.key;
    }
    return place;
}

std::string Layout::description() const {
    std::ostringstream lines;
    forEach([&](std::int32_t index, const LayoutItem& item) {
        for (std::int32_t at = item.parent; at >= 0; at = (*this)[at].parent) lines << "  ";
        lines << nameOf((*this)[index]);
        if (item.kind == ItemKind::text) lines << " \"" << item.view->as<TextContent>().text << '"';
        if (item.kind == ItemKind::symbol) lines << ' ' << item.view->as<ImageContent>().systemName;
        lines << ' ' << item.frame.minX() << ' ' << item.frame.minY() << ' ' << item.frame.width() << ' '
              << item.frame.height() << '\n';
    });
    return lines.str();
}

}  // namespace views
