#include "views/nodes/PictureNode.h"

#include "views/Canvas.h"
#include "views/LayoutPass.h"

namespace views {

void PictureNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    pass.open(*this, view, opening);
}

CGSize PictureNode::measure(LayoutPass& /*pass*/, std::int32_t /*index*/, const ProposedSize& proposal) const {
    const CGSize size = content->image.size();
    return content->isResizable ? CGSize{orElse(proposal.width, size.width), orElse(proposal.height, size.height)}
                                : size;
}

void PictureNode::draw(Canvas& canvas, const LayoutItem& item) const {
    const CGRect rect = canvas.drawn(item.frame);
    if (canvas.isAt(Canvas::Stratum::shapes))
        canvas.add(rect, platform::DrawImage{content->image, rect, content->interpolation});
}

}  // namespace views
