#include "views/nodes/PictureNode.h"

#include <utility>
#include <variant>

#include "views/Canvas.h"
#include "views/LayoutPass.h"

namespace views {

namespace {

// Puts the strokes of a drawn picture where the picture is shown.
class PlacedStrokes {
public:
    PlacedStrokes(const platform::NSImage& theImage, const CGRect& theFrame, Color theTint, Canvas& theCanvas)
        : image(theImage),
          frame(theFrame),
          tint(theTint),
          canvas(theCanvas),
          scale(theFrame.height() / theImage.size().height) {}

    void operator()(platform::FillShape fill) { add(place(fill.shape), fill); }
    void operator()(platform::StrokeShape stroke) {
        stroke.lineWidth *= scale;
        add(place(stroke.shape), stroke);
    }
    void operator()(platform::StrokePath stroke) {
        stroke.lineWidth *= scale;
        for (CGPoint& point : stroke.points) point = place(point);
        add(frame, stroke);
    }
    // No handler makes any other.
    template <typename Operation>
    void operator()(const Operation& /*operation*/) {}

private:
    template <typename Operation>
    void add(const CGRect& rect, Operation& operation) {
        if (image.isTemplate()) operation.color = {tint.role, tint.opacity * operation.color.opacity, tint.rgb};
        canvas.add(rect, std::move(operation));
    }
    CGPoint place(const CGPoint& point) const {
        const double y = image.isFlipped() ? point.y : image.size().height - point.y;
        return {frame.minX() + point.x * scale, frame.minY() + y * scale};
    }
    const CGRect& place(platform::RoundedShape& shape) const {
        const CGRect& rect = shape.rect;
        const CGPoint corner = place(CGPoint{rect.minX(), image.isFlipped() ? rect.minY() : rect.maxY()});
        shape.rect = {corner, {rect.width() * scale, rect.height() * scale}};
        shape.radius *= scale;
        return shape.rect;
    }

    const platform::NSImage& image;
    const CGRect& frame;
    const Color tint;
    Canvas& canvas;
    const double scale;
};

}  // namespace

void PictureNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    pass.openLeaf(*this, view, opening);
}

CGSize PictureNode::measure(LayoutPass& /*pass*/, std::int32_t /*index*/, const ProposedSize& proposal) const {
    const CGSize size = content->image.size();
    return content->isResizable ? CGSize{orElse(proposal.width, size.width), orElse(proposal.height, size.height)}
                                : size;
}

void PictureNode::draw(Canvas& canvas, const LayoutItem& item) const {
    if (!canvas.isAt(Canvas::Stratum::shapes)) return;
    const CGRect rect = canvas.drawn(item.frame);
    if (const platform::Drawing* strokes = content->image.drawing()) {
        PlacedStrokes placed(content->image, rect, item.color, canvas);
        for (const auto& stroke : strokes->operations) std::visit(placed, stroke);
    } else {
        canvas.add(rect, platform::DrawImage{content->image, rect, content->interpolation});
    }
}

}  // namespace views
