// Shapes: they take the size they are offered. Without fill or stroke they are filled with the foreground colour in
// force. A colour is a filled rectangle.
#pragma once

#include <limits>

#include "views/View.h"

namespace views {

class ShapeNode final : public LeafOf<ShapeNode> {
public:
    enum class Form : std::uint8_t { rounded, circle };
    enum class Style : std::uint8_t { inherited, filled, stroked, strokedInside };
    struct Content {
        Form form = Form::rounded;
        Style style = Style::inherited;
        platform::CornerStyle corners = platform::CornerStyle::circular;
        double radius = 0;  // infinite: a capsule
        Color color;
        double lineWidth = 0;
        friend bool operator==(const Content&, const Content&) = default;
    };
    explicit ShapeNode(const Content& theContent) : content(theContent) {}
    explicit ShapeNode(Color color) {
        content.style = Style::filled;
        content.color = color;
    }

    const char* name() const override { return "shape"; }
    bool looksLike(const Node& other) const override { return content == same(other).content; }
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void draw(Canvas& canvas, const LayoutItem& item) const override;

private:
    Content content;
};

// What Rectangle() and the like answer: it becomes a view by its style, or as it is.
class Shape {
public:
    explicit Shape(const ShapeNode::Content& theContent) : content(theContent) {}

    View fill(Color color) const { return styled(ShapeNode::Style::filled, color, 0); }
    // The line is centred on the shape's edge.
    View stroke(Color color, double lineWidth) const { return styled(ShapeNode::Style::stroked, color, lineWidth); }
    // The line is wholly within the shape.
    View strokeBorder(Color color, double lineWidth) const {
        return styled(ShapeNode::Style::strokedInside, color, lineWidth);
    }
    double cornerRadius() const { return content.radius; }
    platform::CornerStyle cornerStyle() const { return content.corners; }
    operator View() const { return View(ShapeNode(content)); }  // NOLINT(google-explicit-constructor)

private:
    View styled(ShapeNode::Style style, Color color, double lineWidth) const {
        ShapeNode::Content changed = content;
        changed.style = style;
        changed.color = color;
        changed.lineWidth = lineWidth;
        return View(ShapeNode(changed));
    }
    ShapeNode::Content content;
};

inline Shape Rectangle() {
    return Shape({});
}
inline Shape RoundedRectangle(double cornerRadius, platform::CornerStyle style = platform::CornerStyle::continuous) {
    ShapeNode::Content content;
    content.corners = style;
    content.radius = cornerRadius;
    return Shape(content);
}
inline Shape Capsule(platform::CornerStyle style = platform::CornerStyle::continuous) {
    return RoundedRectangle(infinity, style);
}
// In the middle of what it is offered.
inline Shape Circle() {
    ShapeNode::Content content;
    content.form = ShapeNode::Form::circle;
    content.radius = infinity;
    return Shape(content);
}

}  // namespace views
