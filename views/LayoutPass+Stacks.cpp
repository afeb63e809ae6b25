// How a stack shares its length among its children: higher layout priorities first, and among equals the least flexible
// first.
#include <algorithm>

#include "views/LayoutPass.h"

namespace views {

// A stack's two directions: `main` along it, `cross` across it.
class LayoutPass::Axis {
public:
    Axis(const LayoutItem& stack, double theCross) : isVertical(stack.kind == ItemKind::vStack), cross(theCross) {}
    double main(CGSize size) const { return isVertical ? size.height : size.width; }
    ProposedSize proposal(double length) const {
        return isVertical ? ProposedSize{cross, length} : ProposedSize{length, cross};
    }

private:
    const bool isVertical;
    const double cross;
};

CGSize LayoutPass::measureStack(std::int32_t index, const ProposedSize& proposal) {
    distribute(index, proposal);
    const LayoutItem& stack = layout[index];
    const double spacing = stack.view->as<StackContent>().spacing;
    const bool isVertical = stack.kind == ItemKind::vStack;
    CGSize total;
    for (std::int32_t child = stack.firstChild; child >= 0; child = layout[child].nextSibling) {
        const CGSize size = measure(child, layout[child].offered);
        const double gap = child == stack.firstChild ? 0 : spacing;
        total = isVertical ? CGSize{std::max(total.width, size.width), total.height + gap + size.height}
                           : CGSize{total.width + gap + size.width, std::max(total.height, size.height)};
    }
    return total;
}

void LayoutPass::distribute(std::int32_t index, const ProposedSize& proposal) {
    LayoutItem& stack = layout[index];
    if (stack.isShared && stack.shared == proposal) return;
    stack.shared = proposal;
    stack.isShared = true;
    const bool isVertical = stack.kind == ItemKind::vStack;
    const Axis axis(stack, isVertical ? proposal.width : proposal.height);
    const double length = isVertical ? proposal.height : proposal.width;

    // Nobody competes for nothing, for everything, or when each may take its ideal.
    if (length == unspecified || length == infinity || length == 0) {
        for (std::int32_t child = stack.firstChild; child >= 0; child = layout[child].nextSibling)
            offer(child, axis, length);
        return;
    }
    double available = length;
    for (std::int32_t child = stack.firstChild; child >= 0; child = layout[child].nextSibling)
        if (child != stack.firstChild) available -= stack.view->as<StackContent>().spacing;
    if (!offerAmpleRoom(stack, axis, available)) offerByPriority(stack, axis, available);
}

// When all have priorities of their own and their largest sizes fit together, each gets its largest, whatever the
// order: one question each.
bool LayoutPass::offerAmpleRoom(const LayoutItem& stack, const Axis& axis, double available) {
    double last = -infinity;
    for (std::int32_t child = stack.firstChild; child >= 0; child = layout[child].nextSibling) {
        if (layout[child].priority <= last) return false;
        last = layout[child].priority;
    }
    double total = 0;
    for (std::int32_t child = stack.firstChild; child >= 0; child = layout[child].nextSibling) {
        total += offer(child, axis, infinity);
        if (total > available) return false;
    }
    return true;
}

void LayoutPass::offerByPriority(const LayoutItem& stack, const Axis& axis, double available) {
    const std::size_t begin = claims.size();
    for (std::int32_t child = stack.firstChild; child >= 0; child = layout[child].nextSibling) {
        const double minimum = offer(child, axis, 0);
        claims.push_back({child, layout[child].priority, minimum, offer(child, axis, infinity) - minimum});
    }
    const auto first = claims.begin() + static_cast<std::ptrdiff_t>(begin);
    std::stable_sort(first, claims.end(), [](const Claim& a, const Claim& b) {
        return a.priority != b.priority ? a.priority > b.priority : a.flexibility < b.flexibility;
    });

    double reserved = 0;  // the minimum of all that come later, with lower priority
    for (std::size_t index = begin; index < claims.size(); ++index) reserved += claims[index].minimum;
    const std::size_t end = claims.size();
    for (std::size_t group = begin; group < end;) {
        std::size_t groupEnd = group;
        while (groupEnd < end && claims[groupEnd].priority == claims[group].priority)
            reserved -= claims[groupEnd++].minimum;
        for (; group < groupEnd; ++group) {
            const double share = (available - reserved) / static_cast<double>(groupEnd - group);
            available -= offer(claims[group].child, axis, std::max(0.0, share));
        }
    }
    claims.resize(begin);
}

double LayoutPass::offer(std::int32_t child, const Axis& axis, double length) {
    layout[child].offered = axis.proposal(length);
    return axis.main(measure(child, layout[child].offered));
}

void LayoutPass::placeStack(std::int32_t index, const CGRect& frame) {
    distribute(index, layout[index].offered);
    const auto& stack = layout[index].view->as<StackContent>();
    const bool isVertical = layout[index].kind == ItemKind::vStack;
    double x = frame.minX();
    double y = frame.minY();
    for (std::int32_t child = layout[index].firstChild; child >= 0; child = layout[child].nextSibling) {
        const CGSize size = measure(child, layout[child].offered);
        const double aside = isVertical ? offsetOf(stack.alignment.horizontal, frame.width() - size.width)
                                        : offsetOf(stack.alignment.vertical, frame.height() - size.height);
        place(child, {isVertical ? CGPoint{x + aside, y} : CGPoint{x, y + aside}, size});
        (isVertical ? y : x) += (isVertical ? size.height : size.width) + stack.spacing;
    }
}

}  // namespace views
