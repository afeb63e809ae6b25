#include "views/nodes/StackNode.h"

#include <algorithm>

#include "views/LayoutPass.h"
#include "views/MenuItems.h"

namespace views {

// How one stack shares its length among its children. What they took is then their answer to `offered`.
class StackNode::Sharing {
public:
    Sharing(const StackNode& theStack, LayoutPass& thePass, std::int32_t index, double theCross)
        : pass(thePass), isVertical(theStack.isVertical), spacing(theStack.spacing), stack(index), cross(theCross) {}

    void share(double length) {
        // Nobody competes for nothing, for everything, or when each may take its ideal.
        if (length == unspecified || length == infinity || length == 0) {
            forEachChild([&](std::int32_t child) { offer(child, length); });
            return;
        }
        double available = length;
        forEachChild([&](std::int32_t child) {
            if (child != pass[stack].firstChild) available -= spacing;
        });
        if (!offerAmpleRoom(available)) offerByPriority(available);
    }

private:
    template <typename Visit>
    void forEachChild(Visit visit) {
        for (std::int32_t child = pass[stack].firstChild; child >= 0; child = pass[child].nextSibling) visit(child);
    }

    double offer(std::int32_t child, double length) {
        LayoutItem& item = pass[child];
        item.offered = isVertical ? ProposedSize{cross, length} : ProposedSize{length, cross};
        const CGSize size = pass.measure(child, item.offered);
        return isVertical ? size.height : size.width;
    }

    // When all have priorities of their own and their largest sizes fit together, each gets its largest, whatever the
    // order: one question each.
    bool offerAmpleRoom(double available) {
        double last = -infinity;
        for (std::int32_t child = pass[stack].firstChild; child >= 0; child = pass[child].nextSibling) {
            if (pass[child].priority <= last) return false;
            last = pass[child].priority;
        }
        double total = 0;
        for (std::int32_t child = pass[stack].firstChild; child >= 0; child = pass[child].nextSibling) {
            total += offer(child, infinity);
            if (total > available) return false;
        }
        return true;
    }

    void offerByPriority(double available) {
        std::vector<LayoutPass::Claim>& claims = pass.claims;
        const std::size_t begin = claims.size();
        forEachChild([&](std::int32_t child) {
            const double minimum = offer(child, 0);
            claims.push_back({child, pass[child].priority, minimum, offer(child, infinity) - minimum});
        });
        std::stable_sort(claims.begin() + static_cast<std::ptrdiff_t>(begin), claims.end(),
                         [](const auto& a, const auto& b) {
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
                const double part = (available - reserved) / static_cast<double>(groupEnd - group);
                available -= offer(claims[group].child, std::max(0.0, part));
            }
        }
        claims.resize(begin);
    }

    LayoutPass& pass;
    const bool isVertical;
    const double spacing;
    const std::int32_t stack;
    const double cross;
};

bool StackNode::looksLike(const Node& other) const {
    const StackNode& stack = same(other);
    return alignment == stack.alignment && isVertical == stack.isVertical && spacing == stack.spacing;
}

void StackNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    Siblings inner{pass.open(*this, view, opening), LayoutItem::none, true};
    Surroundings around = opening.around;
    around.isVertical = isVertical;
    for (View& child : view.children) pass.append(child, inner, around);
}

CGSize StackNode::measureAnew(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    LayoutItem& stack = pass[index];
    if (!stack.isShared || stack.shared != proposal) {
        stack.shared = proposal;
        stack.isShared = true;
        Sharing(*this, pass, index, isVertical ? proposal.width : proposal.height)
            .share(isVertical ? proposal.height : proposal.width);
    }
    CGSize total;
    for (std::int32_t child = stack.firstChild; child >= 0; child = pass[child].nextSibling) {
        const CGSize size = pass.measure(child, pass[child].offered);
        const double gap = child == stack.firstChild ? 0 : spacing;
        total = isVertical ? CGSize{std::max(total.width, size.width), total.height + gap + size.height}
                           : CGSize{total.width + gap + size.width, std::max(total.height, size.height)};
    }
    return total;
}

// The children still have what the last question offered them, which may be another.
void StackNode::place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const {
    if (!pass[index].isShared || pass[index].shared != pass[index].offered)
        measureAnew(pass, index, ProposedSize(pass[index].offered));
    double x = frame.minX();
    double y = frame.minY();
    for (std::int32_t child = pass[index].firstChild; child >= 0; child = pass[child].nextSibling) {
        const CGSize size = pass.measure(child, pass[child].offered);
        const double aside = isVertical ? offsetOf(alignment.horizontal, frame.width() - size.width)
                                        : offsetOf(alignment.vertical, frame.height() - size.height);
        pass.place(child, {isVertical ? CGPoint{x + aside, y} : CGPoint{x, y + aside}, size});
        (isVertical ? y : x) += (isVertical ? size.height : size.width) + spacing;
    }
}

void StackNode::addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const {
    if (isVertical)
        Node::addMenuItems(view, items);
    else
        items.push_back(labelledMenuItem(view));
}

}  // namespace views
