// Shapes: they take the size they are offered. Without fill or stroke they are filled with the foreground colour in
// force.
#pragma once

#include <utility>

#include "views/View.h"

namespace views {

class Shape {
public:
    explicit Shape(ShapeContent theContent) : content(theContent) {}

    View fill(Color color) const { return styled(ShapeStyle::filled, color, 0); }
    // The line lies wholly within the shape.
    View strokeBorder(Color color, double lineWidth) const {
        return styled(ShapeStyle::strokedInside, color, lineWidth);
    }
    const ShapeContent& form() const { return content; }
    operator View() const { return View(ViewKind::shape, content); }  // NOLINT(google-explicit-constructor)

private:
    View styled(ShapeStyle style, Color color, double lineWidth) const {
        ShapeContent changed = content;
        changed.style = style;
        changed.color = color;
        changed.lineWidth = lineWidth;
        return View(ViewKind::shape, changed);
    }
    ShapeContent content;
};

inline Shape Rectangle() {
    return Shape({});
}
inline Shape RoundedRectangle(double cornerRadius, CornerStyle style = CornerStyle::continuous) {
    ShapeContent content;
    content.form = ShapeForm::rounded;
    content.corners = style;
    content.radius = cornerRadius;
    return Shape(content);
}
inline Shape Capsule(CornerStyle style = CornerStyle::continuous) {
    ShapeContent content;
    content.form = ShapeForm::capsule;
    content.corners = style;
    return Shape(content);
}

// Room that takes whatever is left along the stack it stands in.
inline View Spacer(double minLength = 8) {
    return View(ViewKind::spacer, LengthContent{minLength});
}

// A hairline across the stack it stands in.
inline View Divider() {
    return View(ViewKind::divider);
}

}  // namespace views
