// What a picture's drawing handler draws into, in the picture's own coordinates. It writes down strokes; painting them is for whoever shows the picture.
#pragma once

#include <utility>

#include "platform/Drawing.h"
#include "platform/NSBezierPath.h"

namespace platform {

class NSGraphicsContext {
public:
    void setStroke(Color color) { strokeColor = color; }
    void setFill(Color color) { fillColor = color; }

    void stroke(const NSBezierPath& path) {
        if (const auto& shape = path.closedShape())
            strokes.operations.emplace_back(StrokeShape{*shape, strokeColor, path.lineWidth});
        else
            strokes.operations.emplace_back(
                StrokePath{path.points(), strokeColor, path.lineWidth, path.lineCapStyle, path.lineJoinStyle});
    }
    // Of a closed path: an open one has nothing inside.
    void fill(const NSBezierPath& path) {
        if (const auto& shape = path.closedShape()) strokes.operations.emplace_back(FillShape{*shape, fillColor});
    }

    Drawing takeDrawing() { return std::move(strokes); }

private:
    Drawing strokes;
    Color strokeColor = Color::of(ColorRole::black);
    Color fillColor = Color::of(ColorRole::black);
};

}  // namespace platform
