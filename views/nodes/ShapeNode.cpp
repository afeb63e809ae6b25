#include "views/nodes/ShapeNode.h"

#include <algorithm>

#include "views/Canvas.h"
#include "views/LayoutPass.h"

namespace views {

namespace {

CGRect squareIn(const CGRect& rect) {
    const double side = std::min(rect.width(), rect.height());
    return CGRectMake(rect.midX() - side / 2, rect.midY() - side / 2, side, side);
}

}  // namespace

void ShapeNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    LayoutItem& item = pass.openLeaf(*this, view, opening);
    if (content.style != Style::inherited) item.color = opening.around.faded(content.color);
}

CGSize ShapeNode::measure(LayoutPass& /*pass*/, std::int32_t /*index*/, const ProposedSize& proposal) const {
    return {orElse(proposal.width, withoutPreference), orElse(proposal.height, withoutPreference)};
}

void ShapeNode::draw(Canvas& canvas, const LayoutItem& item) const {
    if (!canvas.isAt(Canvas::Stratum::shapes)) return;
    const CGRect rect = canvas.crisp(content.form == Form::circle ? squareIn(item.frame) : item.frame);
    const double radius = std::min({canvas.drawn(content.radius), rect.width() / 2, rect.height() / 2});
    if (content.style == Style::inherited || content.style == Style::filled) {
        canvas.fill(rect, radius, content.corners, item.color);
        return;
    }
    if (rect.width() <= 0 || rect.height() <= 0 || !Canvas::isVisible(item.color)) return;
    const double width = canvas.drawn(content.lineWidth);
    const double inset = content.style == Style::strokedInside ? width / 2 : 0;
    const platform::RoundedShape path{platform::CGRectInset(rect, inset, inset), std::max(0.0, radius - inset),
                                      content.corners};
    canvas.add(platform::CGRectInset(rect, inset - width / 2, inset - width / 2),
               platform::StrokeShape{path, item.color, width});
}

}  // namespace views
