// A path that a picture's handler strokes or fills: a rounded rectangle, a circle, or a line through points. It is a value and draws nothing itself; NSGraphicsContext does.
#pragma once

#include <optional>
#include <vector>

#include "platform/Drawing.h"

namespace platform {

class NSBezierPath {
public:
    // An open path: move(), then line() as often as wanted.
    NSBezierPath() = default;
    static NSBezierPath roundedRect(const CGRect& rect, double radius) { return NSBezierPath({rect, radius}); }
    // In a square: circles are all that is drawn here.
    static NSBezierPath ovalIn(const CGRect& square) { return NSBezierPath({square, square.height() / 2}); }

    void move(const CGPoint& to) { corners = {to}; }
    void line(const CGPoint& to) { corners.push_back(to); }

    double lineWidth = 1;
    LineCap lineCapStyle = LineCap::butt;
    LineJoin lineJoinStyle = LineJoin::miter;

    // Empty for an open path, whose points these are.
    const std::optional<RoundedShape>& closedShape() const { return closed; }
    const std::vector<CGPoint>& points() const { return corners; }

private:
    explicit NSBezierPath(RoundedShape shape) : closed(shape) {}

    std::optional<RoundedShape> closed;
    std::vector<CGPoint> corners;
};

}  // namespace platform
