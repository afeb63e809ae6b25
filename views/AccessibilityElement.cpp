#include "views/AccessibilityElement.h"

#include <optional>

namespace views {

namespace {

void addText(const Layout& layout, std::int32_t index, std::string& text) {
    const LayoutItem& item = layout[index];
    if (item.kind == ItemKind::text) {
        if (!text.empty()) text += ' ';
        text += item.view->as<TextContent>().text;
    }
    for (std::int32_t child = item.firstChild; child >= 0; child = layout[child].nextSibling)
        addText(layout, child, text);
}

std::string firstSymbol(const Layout& layout, std::int32_t index) {
    const LayoutItem& item = layout[index];
    if (item.kind == ItemKind::symbol) return item.view->as<ImageContent>().systemName;
    std::string found;
    for (std::int32_t child = item.firstChild; child >= 0 && found.empty(); child = layout[child].nextSibling)
        found = firstSymbol(layout, child);
    return found;
}

std::optional<AccessibilityRole> roleOf(const LayoutItem& item) {
    switch (item.viewKind) {
    case ViewKind::button:
        return AccessibilityRole::button;
    case ViewKind::menu:
        return AccessibilityRole::menuButton;
    case ViewKind::text:
        return AccessibilityRole::staticText;
    case ViewKind::image:
        return AccessibilityRole::image;
    case ViewKind::representable:
        return AccessibilityRole::textField;
    default:
        return std::nullopt;
    }
}

// What the views around an element say about it, down to the element itself.
struct Said {
    std::string label;
    std::string identifier;
    std::string key;
    std::string help;
};

class Collector {
public:
    explicit Collector(const Layout& theLayout) : layout(theLayout) {}

    void collect(std::int32_t index, Said said) {
        const LayoutItem& item = layout[index];
        if (item.key != nullptr) said.key = *item.key;
        if (item.viewKind == ViewKind::help) said.help = item.view->as<TextContent>().text;
        if (item.viewKind == ViewKind::accessibilityLabel) said.label = item.view->as<TextContent>().text;
        if (item.identifier != nullptr) said.identifier = item.identifier;

        const auto role = roleOf(item);
        if (role) {
            add(*role, index, said);
            return;
        }
        const std::size_t before = elements.size();
        const bool isNamed = item.identifier != nullptr;
        if (isNamed) add(AccessibilityRole::group, index, said);
        for (std::int32_t child = item.firstChild; child >= 0; child = layout[child].nextSibling) collect(child, said);
        if (isNamed) mergeOnlyChild(before, said.identifier);
    }

    std::vector<AccessibilityElement> elements;

private:
    void add(AccessibilityRole role, std::int32_t index, const Said& said) {
        AccessibilityElement element;
        element.role = role;
        element.label = said.label;
        if (element.label.empty() && role != AccessibilityRole::group) addText(layout, index, element.label);
        const LayoutItem& item = layout[index];
        if (item.kind == ItemKind::text)
            element.value = item.view->as<TextContent>().text;
        else if (item.kind == ItemKind::wrapped)
            element.value = item.view->as<RepresentableContent>().made->view->accessibilityValue();
        else if (role != AccessibilityRole::group)
            element.value = firstSymbol(layout, index);
        element.identifier = said.identifier;
        element.key = said.key;
        element.help = said.help;
        element.frame = item.frame;
        elements.push_back(std::move(element));
    }

    // A frame or padding that was given an identifier, around one element, is that element: its frame, the element's
    // role.
    void mergeOnlyChild(std::size_t group, const std::string& identifier) {
        const bool hasOne = elements.size() == group + 2 && elements.back().identifier == identifier;
        if (!hasOne) {
            for (std::size_t child = group + 1; child < elements.size(); ++child)
                if (elements[child].identifier == identifier) elements[child].identifier.clear();
            return;
        }
        elements[group + 1].frame = elements[group].frame;
        elements.erase(elements.begin() + static_cast<std::ptrdiff_t>(group));
    }

    const Layout& layout;
};

}  // namespace

std::vector<AccessibilityElement> accessibilityElements(const Layout& layout) {
    Collector collector(layout);
    if (!layout.isEmpty()) collector.collect(layout.root(), {});
    return std::move(collector.elements);
}

}  // namespace views
