// Making the items: the tree of views with its modifiers becomes the flat list that is measured and placed.
#include <algorithm>
#include <cmath>

#include "views/LayoutPass.h"

namespace views {

namespace {

// Text and symbols are as wide as whole pixels at 2x, so that what follows them stays crisp.
double upToHalfPoints(double length) {
    return std::ceil(length * 2) / 2;
}

Color faded(Color color, double opacity) {
    color.opacity *= opacity;
    return color;
}

ItemKind kindOf(const Modifier& modifier) {
    switch (modifier.index()) {
    case 0:
        return ItemKind::padding;
    case 1:
        return ItemKind::fixedFrame;
    case 2:
        return ItemKind::flexibleFrame;
    case 4:
        return ItemKind::clip;
    case 5:
        return ItemKind::scale;
    default:
        return ItemKind::fixedSize;
    }
}

}  // namespace

CGSize LayoutPass::sizeOfLines(const LayoutItem& item, double width) {
    const TextStyle& style = item.textStyle;
    CGSize size;
    for (const std::string& line :
         text.lines(item.view->as<TextContent>().text, item.font, width, style.lineLimit, style.truncation)) {
        size.width = std::max(size.width, upToHalfPoints(text.width(line, item.font)));
        size.height += metrics(item.font).lineHeight();
    }
    return size;
}

void LayoutPass::begin(View& root) {
    layout.items.clear();
    readerSurroundings.clear();
    Siblings siblings;
    append(root, siblings, {});
}

void LayoutPass::append(View& view, Siblings& siblings, const Surroundings& around) {
    const bool isPlainGroup = view.kind == ViewKind::group && view.modifiers.isEmpty();
    if (isPlainGroup && siblings.canBeMany) {
        for (View& child : view.children) append(child, siblings, around);
        return;
    }
    if (view.kind == ViewKind::empty && siblings.canBeMany) return;
    Pending pending;
    appendChain(view, siblings, pending, around);
}

// From the outermost modifier inwards: what changes frames becomes an item around the rest, everything else is noted.
void LayoutPass::appendChain(View& view, Siblings& siblings, Pending& pending, Surroundings around) {
    if (!view.key.empty() && pending.outermost == LayoutItem::none) pending.key = &view.key;
    Siblings inner = siblings;
    bool isNested = false;
    for (std::size_t count = view.modifiers.size(); count > 0; --count) {
        const Modifier& modifier = view.modifiers[count - 1];
        if (const auto* font = std::get_if<Font>(&modifier)) {
            around.font = *font;
        } else if (const auto* color = std::get_if<Color>(&modifier)) {
            around.color = *color;
        } else if (const auto* limit = std::get_if<LineLimit>(&modifier)) {
            around.textStyle.lineLimit = limit->lines;
        } else if (const auto* truncation = std::get_if<TextTruncation>(&modifier)) {
            around.textStyle.truncation = *truncation;
        } else if (const auto* alignment = std::get_if<HorizontalAlignment>(&modifier)) {
            around.textStyle.alignment = *alignment;
        } else if (const auto* opacity = std::get_if<Opacity>(&modifier)) {
            around.opacity *= opacity->value;
        } else if (const auto* identifier = std::get_if<AccessibilityIdentifier>(&modifier)) {
            pending.identifier = identifier->name;
        } else if (const auto* priority = std::get_if<LayoutPriority>(&modifier)) {
            pending.priority = priority->value;
            if (pending.outermost >= 0) layout[pending.outermost].priority = priority->value;
        } else {
            const std::int32_t index = open(kindOf(modifier), view, isNested ? inner : siblings, pending, &modifier);
            inner = {index, LayoutItem::none, false};
            isNested = true;
        }
    }
    appendCore(view, isNested ? inner : siblings, pending, around);
}

// One case for each kind of view, and nothing else.
// NOLINTNEXTLINE(readability-function-size)
void LayoutPass::appendCore(View& view, Siblings& siblings, Pending& pending, const Surroundings& around) {
    switch (view.kind) {
    case ViewKind::empty:
        open(ItemKind::empty, view, siblings, pending);
        break;
    case ViewKind::text:
        appendLeaf(view, ItemKind::text, siblings, pending, around);
        break;
    case ViewKind::image:
        appendLeaf(view, ItemKind::symbol, siblings, pending, around);
        break;
    case ViewKind::picture:
        appendLeaf(view, ItemKind::picture, siblings, pending, around);
        break;
    case ViewKind::shape:
        appendLeaf(view, ItemKind::shape, siblings, pending, around);
        break;
    case ViewKind::spacer:
        appendLeaf(view, ItemKind::spacer, siblings, pending, around);
        break;
    case ViewKind::divider:
        appendLeaf(view, ItemKind::divider, siblings, pending, around);
        break;
    case ViewKind::representable:
        appendLeaf(view, ItemKind::wrapped, siblings, pending, around);
        break;
    case ViewKind::hStack:
        appendContainer(view, ItemKind::hStack, siblings, pending, around);
        break;
    case ViewKind::vStack:
        appendContainer(view, ItemKind::vStack, siblings, pending, around);
        break;
    case ViewKind::zStack:
        appendContainer(view, ItemKind::layers, siblings, pending, around);
        break;
    case ViewKind::geometryReader: {
        const std::int32_t index = open(ItemKind::geometryReader, view, siblings, pending);
        layout[index].natural.width = static_cast<double>(readerSurroundings.size());
        readerSurroundings.push_back(around);
        break;
    }
    case ViewKind::group:
        if (view.children.size() == 1)
            appendChain(view.children.front(), siblings, pending, around);
        else
            appendContainer(view, ItemKind::layers, siblings, pending, around);
        break;
    case ViewKind::composite:
        if (siblings.canBeMany && pending.outermost == LayoutItem::none &&
            view.children.front().kind == ViewKind::group)
            append(view.children.front(), siblings, around);
        else
            appendChain(view.children.front(), siblings, pending, around);
        break;
    case ViewKind::background:
        appendWrapped(view, ItemKind::background, siblings, pending, around);
        break;
    case ViewKind::overlay:
        appendWrapped(view, ItemKind::overlay, siblings, pending, around);
        break;
    default:
        appendWrapped(view, ItemKind::passThrough, siblings, pending, around);
        break;
    }
}

void LayoutPass::appendContainer(View& view, ItemKind kind, Siblings& siblings, Pending& pending, Surroundings around) {
    const std::int32_t index = open(kind, view, siblings, pending);
    if (kind != ItemKind::layers) around.isVertical = kind == ItemKind::vStack;
    Siblings inner{index, LayoutItem::none, true};
    for (View& child : view.children) append(child, inner, around);
}

void LayoutPass::appendWrapped(View& view, ItemKind kind, Siblings& siblings, Pending& pending,
                               const Surroundings& around) {
    const std::int32_t index = open(kind, view, siblings, pending);
    Siblings inner{index, LayoutItem::none, false};
    if (kind == ItemKind::background) append(view.children[1], inner, around);
    append(view.children[0], inner, around);
    if (kind == ItemKind::overlay) append(view.children[1], inner, around);
}

void LayoutPass::appendLeaf(View& view, ItemKind kind, Siblings& siblings, Pending& pending,
                            const Surroundings& around) {
    LayoutItem& item = layout[open(kind, view, siblings, pending)];
    item.font = around.font;
    item.color = faded(around.color, around.opacity);
    item.isVertical = around.isVertical;
    if (kind == ItemKind::text) {
        item.textStyle = around.textStyle;
        const std::string& shown = view.as<TextContent>().text;
        const bool isOneLine = around.textStyle.lineLimit == 1 || shown.find('\n') == std::string::npos;
        item.natural = isOneLine ? CGSize{upToHalfPoints(text.width(shown, item.font)), metrics(item.font).lineHeight()}
                                 : sizeOfLines(item, infinity);
    } else if (kind == ItemKind::picture) {
        item.natural = view.as<ImageContent>().picture.size();
    } else if (kind == ItemKind::symbol) {
        const CGSize size = text.symbolSize(view.as<ImageContent>().systemName, item.font).value_or(CGSize{});
        item.natural = {upToHalfPoints(size.width), upToHalfPoints(size.height)};
    } else if (kind == ItemKind::spacer) {
        item.natural.width = view.as<LengthContent>().value;
    } else if (kind == ItemKind::shape) {
        const auto& shape = view.as<ShapeContent>();
        if (shape.style != ShapeStyle::inherited) item.color = faded(shape.color, around.opacity);
    }
}

std::int32_t LayoutPass::open(ItemKind kind, View& view, Siblings& siblings, Pending& pending,
                              const Modifier* modifier) {
    const auto index = static_cast<std::int32_t>(layout.items.size());
    LayoutItem& item = layout.items.emplace_back();
    item.kind = kind;
    item.viewKind = modifier == nullptr ? view.kind : ViewKind::empty;
    item.view = &view;
    item.modifier = modifier;
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

const platform::FontMetrics& LayoutPass::metrics(Font font) {
    if (font != metricsFont) {
        metricsFont = font;
        lastMetrics = text.metrics(font);
    }
    return lastMetrics;
}

}  // namespace views
