#include "views/nodes/GridNode.h"

#include <algorithm>

#include "views/LayoutPass.h"

namespace views {

namespace {

constexpr double leastColumnWidth = 10;

}  // namespace

bool GridNode::looksLike(const Node& other) const {
    const GridNode& grid = same(other);
    return columns == grid.columns && alignment == grid.alignment && spacing == grid.spacing;
}

void GridNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    Siblings inner{pass.open(*this, view, opening), LayoutItem::none, true};
    for (View& child : view.children) pass.append(child, inner, opening.around);
}

double GridNode::gaps() const {
    double sum = 0;
    for (std::size_t column = 0; column + 1 < columns.size(); ++column) sum += columns[column].spacing;
    return sum;
}

double GridNode::columnWidth(double width) const {
    return std::max(leastColumnWidth, (width - gaps()) / static_cast<double>(columns.size()));
}

template <typename Visit>
double GridNode::forEachCell(LayoutPass& pass, std::int32_t index, double width, Visit visit) const {
    const ProposedSize offered{columnWidth(width), unspecified};
    double y = 0;
    for (std::int32_t first = pass[index].firstChild; first >= 0;) {
        double height = 0;
        std::int32_t next = first;
        for (std::size_t column = 0; column < columns.size() && next >= 0; ++column, next = pass[next].nextSibling)
            height = std::max(height, pass.measure(next, offered).height);
        if (y > 0) y += spacing;
        double x = 0;
        std::size_t column = 0;
        for (std::int32_t child = first; child != next; child = pass[child].nextSibling) {
            visit(child, CGRectMake(x, y, offered.width, height));
            x += offered.width + columns[column++].spacing;
        }
        y += height;
        first = next;
    }
    return y;
}

CGSize GridNode::measureAnew(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    const double least = static_cast<double>(columns.size()) * leastColumnWidth + gaps();
    const double width = std::max(least, orElse(proposal.width, least));
    return {width, forEachCell(pass, index, width, [](std::int32_t, const CGRect&) {})};
}

void GridNode::place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const {
    forEachCell(pass, index, frame.width(), [&](std::int32_t child, const CGRect& cell) {
        const CGRect place{{frame.minX() + cell.minX(), frame.minY() + cell.minY()}, cell.size};
        pass.placeAligned(child, place, alignment, {cell.width(), unspecified});
    });
}

}  // namespace views
