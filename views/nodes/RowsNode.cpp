#include "views/nodes/RowsNode.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "views/LayoutPass.h"

namespace views {

// The rows before wait for the next layout, which matches them with the fresh ones.
bool RowsNode::update(Reconciler& /*reconciler*/, View& fresh, View* previous) {
    if (previous != nullptr) fresh.children = std::move(previous->children);
    return false;
}

void RowsNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    const std::int32_t index = pass.open(*this, view, opening);
    pass[index].kept = pass.keep(opening.around);
}

CGSize RowsNode::measure(LayoutPass& /*pass*/, std::int32_t /*index*/, const ProposedSize& proposal) const {
    return {orElse(proposal.width, withoutPreference), static_cast<double>(count) * height};
}

void RowsNode::place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const {
    const CGRect seen = platform::CGRectIntersection(pass.visible, frame);
    const bool isSeen = !platform::CGRectIsNull(seen) && height > 0;
    const auto rowAt = [&](double y) { return static_cast<std::size_t>(std::max(0.0, y)); };
    const std::size_t first = isSeen ? rowAt(std::floor((seen.minY() - frame.minY()) / height)) : 0;
    const std::size_t end = isSeen ? std::min(count, rowAt(std::ceil((seen.maxY() - frame.minY()) / height))) : 0;

    View& view = *pass[index].view;
    pass.redeclare(view, [&](std::vector<View>& children) {
        for (std::size_t row = first; row < end; ++row) children.emplace_back(build(row)).key = std::to_string(row);
    });
    Siblings inner{index};
    const Surroundings around = pass.kept(pass[index].kept);
    std::size_t row = first;
    for (View& child : view.children) {
        pass.append(child, inner, around);
        const double y = frame.minY() + static_cast<double>(row++) * height;
        pass.placeAligned(inner.last, CGRectMake(frame.minX(), y, frame.width(), height), Alignment::leading,
                          {frame.width(), height});
    }
}

}  // namespace views
