#include "views/LayoutPass.h"

#include <algorithm>
#include <cmath>

namespace views {

namespace {

constexpr double withoutPreference = 10;  // what a shape takes along an axis on which it is offered nothing

double orElse(double offered, double otherwise) {
    return offered == unspecified ? otherwise : offered;
}

double reduced(double offered, double insets) {
    return offered == unspecified ? unspecified : std::max(0.0, offered - insets);
}

double clamped(double value, double minimum, double maximum) {
    if (value == unspecified) return unspecified;
    if (maximum != unspecified) value = std::min(value, maximum);
    return std::max(value, minimum);
}

// A limit that isn't given is the content's own length.
double flexibleLength(double offered, double minimum, double maximum, double content) {
    if (minimum == unspecified && maximum == unspecified) return content;
    const double wanted = orElse(offered, content);
    const double low = minimum == unspecified ? std::min(content, orElse(maximum, content)) : minimum;
    const double high = maximum == unspecified ? std::max(content, low) : maximum;
    return std::max(low, std::min(wanted, high));
}

CGSize larger(CGSize a, CGSize b) {
    return {std::max(a.width, b.width), std::max(a.height, b.height)};
}

}  // namespace

LayoutPass::LayoutPass(platform::TextSystem& theText, ExpandReader theExpandReader, Layout& into)
    : text(theText), expandReader(std::move(theExpandReader)), layout(into) {}

void LayoutPass::layOut(View& root, CGSize size) {
    begin(root);
    placeAligned(layout.root(), {{0, 0}, size}, Alignment::center, {size.width, size.height});
}

CGSize LayoutPass::idealSize(View& root) {
    begin(root);
    return measure(layout.root(), {});
}

CGSize LayoutPass::measure(std::int32_t index, const ProposedSize& proposal) {
    LayoutItem& item = layout[index];
    if (const auto size = measureAtOnce(item, proposal)) return *size;
    for (std::size_t known = 0; known < item.answerCount; ++known) {
        const LayoutItem::Answer& answer = item.answers[known];
        if (answer.proposedWidth == proposal.width && answer.proposedHeight == proposal.height)
            return {answer.width, answer.height};
    }
    const CGSize size = measureAnew(index, proposal);
    item.answers[item.nextAnswer] = {proposal.width, proposal.height, size.width, size.height};
    item.answerCount = std::max<std::uint8_t>(item.answerCount, static_cast<std::uint8_t>(item.nextAnswer + 1));
    item.nextAnswer = static_cast<std::uint8_t>((item.nextAnswer + 1U) % item.answers.size());
    return size;
}

// What is no more work than looking an answer up.
std::optional<CGSize> LayoutPass::measureAtOnce(const LayoutItem& item, const ProposedSize& proposal) {
    switch (item.kind) {
    case ItemKind::empty:
        return CGSize{};
    case ItemKind::text:
        return measureText(item, proposal);
    case ItemKind::symbol:
        return item.natural;
    case ItemKind::picture:
        if (!item.view->as<ImageContent>().isResizable) return item.natural;
        return CGSize{orElse(proposal.width, item.natural.width), orElse(proposal.height, item.natural.height)};
    case ItemKind::shape:
    case ItemKind::wrapped:
    case ItemKind::geometryReader:
        return CGSize{orElse(proposal.width, withoutPreference), orElse(proposal.height, withoutPreference)};
    case ItemKind::spacer: {
        const double least = item.natural.width;
        return item.isVertical ? CGSize{0, std::max(least, proposal.height)}
                               : CGSize{std::max(least, proposal.width), 0};
    }
    case ItemKind::divider:
        return item.isVertical ? CGSize{orElse(proposal.width, withoutPreference), 1}
                               : CGSize{1, orElse(proposal.height, withoutPreference)};
    case ItemKind::passThrough:
        return measure(item.firstChild, proposal);
    case ItemKind::fixedFrame: {
        const auto& frame = std::get<FixedFrame>(*item.modifier);
        if (frame.width == unspecified || frame.height == unspecified) return std::nullopt;
        return CGSize{frame.width, frame.height};
    }
    default:
        return std::nullopt;
    }
}

CGSize LayoutPass::measureAnew(std::int32_t index, const ProposedSize& proposal) {
    const LayoutItem& item = layout[index];
    switch (item.kind) {
    case ItemKind::hStack:
    case ItemKind::vStack:
        return measureStack(index, proposal);
    case ItemKind::layers:
        return measureLayers(item, proposal);
    default:
        return measureChild(item, proposal);
    }
}

CGSize LayoutPass::measureText(const LayoutItem& item, const ProposedSize& proposal) {
    if (proposal.width == unspecified || item.natural.width <= proposal.width) return item.natural;
    const double least = std::min(item.natural.width, std::ceil(text.width("…", item.font)));
    const double width = std::max(proposal.width, least);
    if (item.textStyle.lineLimit == 1) return {width, item.natural.height};
    return sizeOfLines(item, width);
}

CGSize LayoutPass::measureLayers(const LayoutItem& item, const ProposedSize& proposal) {
    CGSize size;
    for (std::int32_t child = item.firstChild; child >= 0; child = layout[child].nextSibling)
        size = larger(size, measure(child, proposal));
    return size;
}

CGSize LayoutPass::measureChild(const LayoutItem& item, const ProposedSize& proposal) {
    if (item.kind == ItemKind::fixedFrame) {
        const auto& frame = std::get<FixedFrame>(*item.modifier);
        const CGSize inner = measure(contentOf(item), proposalInside(item, proposal));
        return {orElse(frame.width, inner.width), orElse(frame.height, inner.height)};
    }
    const CGSize inner = measure(contentOf(item), proposalInside(item, proposal));
    if (item.kind == ItemKind::padding) {
        const auto& insets = std::get<EdgeInsets>(*item.modifier);
        return {inner.width + insets.leading + insets.trailing, inner.height + insets.top + insets.bottom};
    }
    if (item.kind == ItemKind::flexibleFrame) {
        const auto& limits = std::get<FlexibleFrame>(*item.modifier);
        return {flexibleLength(proposal.width, limits.minWidth, limits.maxWidth, inner.width),
                flexibleLength(proposal.height, limits.minHeight, limits.maxHeight, inner.height)};
    }
    return inner;
}

ProposedSize LayoutPass::proposalInside(const LayoutItem& item, const ProposedSize& proposal) const {
    switch (item.kind) {
    case ItemKind::padding: {
        const auto& insets = std::get<EdgeInsets>(*item.modifier);
        return {reduced(proposal.width, insets.leading + insets.trailing),
                reduced(proposal.height, insets.top + insets.bottom)};
    }
    case ItemKind::fixedFrame: {
        const auto& frame = std::get<FixedFrame>(*item.modifier);
        return {orElse(frame.width, proposal.width), orElse(frame.height, proposal.height)};
    }
    case ItemKind::flexibleFrame: {
        const auto& limits = std::get<FlexibleFrame>(*item.modifier);
        return {clamped(proposal.width, limits.minWidth, limits.maxWidth),
                clamped(proposal.height, limits.minHeight, limits.maxHeight)};
    }
    case ItemKind::fixedSize: {
        const auto& fixed = std::get<FixedSize>(*item.modifier);
        return {fixed.horizontal ? unspecified : proposal.width, fixed.vertical ? unspecified : proposal.height};
    }
    default:
        return proposal;
    }
}

// A background stands before its content in paint order; everything else with one content has it first.
std::int32_t LayoutPass::contentOf(const LayoutItem& item) const {
    return item.kind == ItemKind::background ? layout[item.firstChild].nextSibling : item.firstChild;
}

void LayoutPass::place(std::int32_t index, const CGRect& frame) {
    layout[index].frame = frame;
    const LayoutItem& item = layout[index];
    switch (item.kind) {
    case ItemKind::hStack:
    case ItemKind::vStack:
        placeStack(index, frame);
        break;
    case ItemKind::geometryReader:
        placeReader(index, frame);
        break;
    case ItemKind::layers: {
        const auto* stack = std::get_if<StackContent>(&item.view->content);
        const Alignment alignment = stack == nullptr ? Alignment::center : stack->alignment;
        for (std::int32_t child = item.firstChild; child >= 0; child = layout[child].nextSibling)
            placeAligned(child, frame, alignment, layout[index].offered);
        break;
    }
    case ItemKind::passThrough:
        layout[item.firstChild].offered = item.offered;
        place(item.firstChild, frame);
        break;
    default:
        if (item.firstChild >= 0) placeContent(item, frame);
    }
}

void LayoutPass::placeAligned(std::int32_t child, const CGRect& inside, Alignment alignment,
                              const ProposedSize& offered) {
    layout[child].offered = offered;
    const CGSize size = measure(child, offered);
    const double x = offsetOf(alignment.horizontal, inside.size.width - size.width);
    const double y = offsetOf(alignment.vertical, inside.size.height - size.height);
    place(child, {{inside.origin.x + x, inside.origin.y + y}, size});
}

// By value: placing a geometry reader inside makes the list of items grow.
void LayoutPass::placeContent(const LayoutItem& theItem, const CGRect& frame) {
    const ItemKind kind = theItem.kind;
    const Modifier* modifier = theItem.modifier;
    const View* view = theItem.view;
    const std::int32_t first = theItem.firstChild;
    const std::int32_t content = contentOf(theItem);
    const ProposedSize inside = proposalInside(theItem, theItem.offered);

    CGRect inner = frame;
    Alignment alignment = Alignment::center;
    if (kind == ItemKind::padding) {
        const auto& insets = std::get<EdgeInsets>(*modifier);
        inner =
            CGRectMake(frame.minX() + insets.leading, frame.minY() + insets.top,
                       frame.width() - insets.leading - insets.trailing, frame.height() - insets.top - insets.bottom);
    } else if (kind == ItemKind::fixedFrame) {
        alignment = std::get<FixedFrame>(*modifier).alignment;
    } else if (kind == ItemKind::flexibleFrame) {
        alignment = std::get<FlexibleFrame>(*modifier).alignment;
    }
    placeAligned(content, inner, alignment, inside);

    const std::int32_t decoration = content == first ? layout[first].nextSibling : first;
    if (decoration >= 0)
        placeAligned(decoration, frame, view->as<StackContent>().alignment, {frame.size.width, frame.size.height});
}

void LayoutPass::placeReader(std::int32_t index, const CGRect& frame) {
    View& reader = *layout[index].view;
    expandReader(reader, frame.size);
    const auto around = static_cast<std::size_t>(layout[index].natural.width);
    Siblings siblings{index, LayoutItem::none, false};
    append(reader.children.front(), siblings, Surroundings(readerSurroundings[around]));
    placeAligned(layout[index].firstChild, frame, Alignment::topLeading, {frame.size.width, frame.size.height});
}

}  // namespace views
