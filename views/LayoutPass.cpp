#include "views/LayoutPass.h"

#include <utility>

namespace views {

LayoutPass::LayoutPass(platform::TextSystem& theText, Redeclare theRedeclare, Layout& into)
    : text(theText), layout(into), redeclareChildren(std::move(theRedeclare)) {}

void LayoutPass::layOut(View& root, CGSize size) {
    begin(root);
    visible = {{0, 0}, size};
    placeAligned(layout.root(), {{0, 0}, size}, Alignment::center, {size.width, size.height});
}

CGSize LayoutPass::idealSize(View& root) {
    begin(root);
    return measure(layout.root(), {});
}

void LayoutPass::begin(View& root) {
    layout.items.clear();
    layout.popovers.clear();
    layout.wrappedViews.clear();
    keptSurroundings.clear();
    Siblings siblings;
    append(root, siblings, {});
}

void LayoutPass::append(View& view, Siblings& siblings, const Surroundings& around) {
    if (siblings.canBeMany && view.node->appendAmong(*this, view, siblings, around)) return;
    Pending pending;
    appendChain(view, siblings, pending, around);
}

void LayoutPass::appendInstead(View& view, const Opening& opening) {
    appendChain(view, opening.siblings, opening.pending, opening.around);
}

// From the outermost modifier inwards: what changes frames becomes an item around the rest, everything else is noted.
void LayoutPass::appendChain(View& view, Siblings& siblings, Pending& pending, Surroundings around) {
    if (!view.key.empty() && pending.outermost == LayoutItem::none) pending.key = &view.key;
    Siblings inner = siblings;
    bool isNested = false;
    for (std::size_t count = view.modifiers.size(); count > 0; --count) {
        const Modifier& modifier = view.modifiers[count - 1];
        const auto take = [&](const auto& each) {
            if constexpr (requires { apply(each, around); }) {
                apply(each, around);
            } else if constexpr (requires { ruleOf(each); }) {
                const std::int32_t index = link(ruleOf(each), view, isNested ? inner : siblings, pending);
                layout[index].modifier = &modifier;
                inner = {index, LayoutItem::none, false};
                isNested = true;
            } else if constexpr (requires { each.name; }) {
                pending.identifier = each.name;
            } else {
                pending.priority = each.value;
                if (pending.outermost >= 0) layout[pending.outermost].priority = each.value;
            }
        };
        std::visit(take, modifier);
    }
    view.node->append(*this, view, {isNested ? inner : siblings, pending, around});
}

std::int32_t LayoutPass::open(const Node& node, View& view, const Opening& opening) {
    const std::int32_t index = link(node, view, opening.siblings, opening.pending);
    layout[index].node = &node;
    layout[index].control = opening.around.control;
    return index;
}

LayoutItem& LayoutPass::openLeaf(const Node& node, View& view, const Opening& opening) {
    LayoutItem& item = layout[open(node, view, opening)];
    const Surroundings& around = opening.around;
    item.font = around.font;
    item.color = around.faded(around.color);
    item.textStyle = around.textStyle;
    item.isVertical = around.isVertical;
    return item;
}

std::int32_t LayoutPass::link(const LayoutRule& rule, View& view, Siblings& siblings, Pending& pending) {
    const auto index = static_cast<std::int32_t>(layout.items.size());
    LayoutItem& item = layout.items.emplace_back();
    item.rule = &rule;
    item.view = &view;
    item.identifier = std::exchange(pending.identifier, nullptr);
    item.parent = siblings.parent;
    if (pending.outermost == LayoutItem::none) {
        item.key = pending.key;
        item.priority = pending.priority;
        pending.outermost = index;
    }
    if (siblings.last >= 0)
        layout[siblings.last].nextSibling = index;
    else if (siblings.parent >= 0)
        layout[siblings.parent].firstChild = index;
    siblings.last = index;
    return index;
}

void LayoutPass::placeAligned(std::int32_t child, const CGRect& inside, Alignment alignment,
                              const ProposedSize& offered) {
    layout[child].offered = offered;
    const CGSize size = measure(child, offered);
    const double x = offsetOf(alignment.horizontal, inside.size.width - size.width);
    const double y = offsetOf(alignment.vertical, inside.size.height - size.height);
    place(child, {{inside.origin.x + x, inside.origin.y + y}, size});
}

std::size_t LayoutPass::keep(const Surroundings& around) {
    keptSurroundings.push_back(around);
    return keptSurroundings.size() - 1;
}

const platform::FontMetrics& LayoutPass::metrics(Font font) {
    if (font != metricsFont) {
        metricsFont = font;
        lastMetrics = text.metrics(font);
    }
    return lastMetrics;
}

}  // namespace views
