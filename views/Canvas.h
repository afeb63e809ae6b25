// Makes the drawing of a layout: rules and nodes add their strokes to it. All shapes come before all text and symbols: painters are several times faster on such a list, and no view
// here has a shape in front of text. It keeps the clip, the scale and the shadow in force; what a clip hides is left out.
#pragma once

#include <optional>
#include <utility>

#include "platform/Drawing.h"
#include "platform/Text.h"
#include "views/Layout.h"

namespace views {

class Canvas {
public:
    enum class Stratum { shapes, texts };

    Canvas(const Layout& theLayout, platform::TextSystem& theText, std::int32_t thePressedItem,
           platform::Drawing& theDrawing)
        : text(theText), into(theDrawing), layout(theLayout), pressedItem(thePressedItem) {}

    // The whole layout, in place of what the drawing held.
    void draw();

    bool isAt(Stratum stratum) const { return now == stratum; }
    void drawChildren(const LayoutItem& item);
    bool isPressed(const LayoutItem& item) const { return pressedItem >= 0 && &layout[pressedItem] == &item; }

    // Where something is drawn that the layout has there. Shapes are on half points, the pixels of a 2x display.
    CGRect drawn(const CGRect& rect) const;
    Font drawn(Font font) const { return {font.size * scale, font.weight}; }
    CGRect crisp(const CGRect& rect) const;
    double drawn(double length) const { return length * scale; }

    template <typename Operation>
    void add(const CGRect& rect, Operation operation) {
        if (isSeen(rect)) into.operations.emplace_back(std::move(operation));
    }
    void fill(const CGRect& rect, double radius, CornerStyle corners, Color color);

    void drawChildrenClipped(const LayoutItem& item, double radius, CornerStyle corners);
    void drawChildrenScaled(const LayoutItem& item, double factor);
    void drawChildrenShadowed(const LayoutItem& item, const platform::Shadow& thrown);

    platform::TextSystem& text;
    platform::Drawing& into;

    static bool isVisible(const Color& color) { return color.role != ColorRole::clear && color.opacity > 0; }

private:
    bool isSeen(const CGRect& rect) const;
    std::optional<platform::Shadow> drawnShadow() const;

    const Layout& layout;
    const std::int32_t pressedItem;
    Stratum now = Stratum::shapes;
    std::optional<CGRect> seen;  // what all clips around leave
    double scale = 1;
    CGPoint origin;
    const platform::Shadow* shadow = nullptr;
};

}  // namespace views
