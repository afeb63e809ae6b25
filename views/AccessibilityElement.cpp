#include "views/AccessibilityElement.h"

#include <utility>

#include "views/Node.h"

namespace views {

namespace {

bool hasArea(const CGRect& rect) {
    return !platform::CGRectIsNull(rect) && rect.width() > 0 && rect.height() > 0;
}

class Collector {
public:
    explicit Collector(const Layout& theLayout) : layout(theLayout) {}

    // What the views around an element say about it goes down to the element itself.
    void collect(std::int32_t index, AccessibilityElement said, CGRect visible) {
        const LayoutItem& item = layout[index];
        if (item.key != nullptr) said.key = *item.key;
        if (item.identifier != nullptr) said.identifier = item.identifier;
        if (item.clips) visible = platform::CGRectIntersection(visible, item.frame);
        said.frame = item.frame;
        said.seen = platform::CGRectIntersection(visible, item.frame);
        said.isVisible = hasArea(said.seen);
        const auto role = item.node == nullptr ? std::nullopt : item.node->role();
        if (role) {
            add(*role, item, std::move(said));
            return;
        }
        if (item.node != nullptr) item.node->describe(said);
        if (said.isHidden) return;
        const std::size_t before = elements.size();
        const bool isNamed = item.identifier != nullptr;
        if (isNamed) elements.push_back(said);
        for (std::int32_t child = item.firstChild; child >= 0; child = layout[child].nextSibling)
            collect(child, said, visible);
        if (isNamed) mergeOnlyChild(before, said.identifier);
    }

    std::vector<AccessibilityElement> elements;

private:
    void add(AccessibilityRole role, const LayoutItem& item, AccessibilityElement element) {
        element.role = role;
        addShown(item, element);
        if (!element.symbols.empty()) element.value = element.symbols.front();
        if (item.node->shownText() != nullptr) element.value = *item.node->shownText();
        if (element.label.empty())
            for (const std::string& text : element.texts) element.label += (element.label.empty() ? "" : " ") + text;
        element.isEnabled = item.control.isEnabled;
        element.isDefault = item.control.isDefault();
        item.node->describe(element);
        elements.push_back(std::move(element));
    }

    void addShown(const LayoutItem& item, AccessibilityElement& element) {
        if (item.node != nullptr && item.node->shownText() != nullptr) element.texts.push_back(*item.node->shownText());
        if (item.node != nullptr && item.node->shownSymbol() != nullptr)
            element.symbols.push_back(*item.node->shownSymbol());
        for (std::int32_t child = item.firstChild; child >= 0; child = layout[child].nextSibling)
            addShown(layout[child], element);
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

std::vector<AccessibilityElement> accessibilityElements(const Layout& layout, CGSize size) {
    Collector collector(layout);
    if (!layout.isEmpty()) collector.collect(layout.root(), {}, {{0, 0}, size});
    return std::move(collector.elements);
}

}  // namespace views
