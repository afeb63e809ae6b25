#include "views/DrawingOfLayout.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace views {

namespace {

double toHalfPoint(double value) {
    return std::round(value * 2) / 2;
}

CGRect crisp(const CGRect& rect) {
    const double x = toHalfPoint(rect.minX());
    const double y = toHalfPoint(rect.minY());
    return CGRectMake(x, y, toHalfPoint(rect.maxX()) - x, toHalfPoint(rect.maxY()) - y);
}

bool isVisible(const Color& color) {
    return color.role != ColorRole::clear && color.opacity > 0;
}

platform::RoundedShape shapeIn(const CGRect& rect, const ShapeContent& shape) {
    const double most = std::min(rect.width(), rect.height()) / 2;
    switch (shape.form) {
    case ShapeForm::rectangle:
        return {rect, 0, CornerStyle::circular};
    case ShapeForm::rounded:
        return {rect, std::min(shape.radius, most), shape.corners};
    case ShapeForm::capsule:
        return {rect, most, shape.corners};
    }
    return {};
}

// One walk through the layout for all shapes, or for all that stands on them.
class Walk {
public:
    Walk(const Layout& theLayout, platform::TextSystem& theText, platform::Drawing& theDrawing, bool isOfShapes)
        : layout(theLayout), text(theText), into(theDrawing), shapes(isOfShapes) {}

    void visit(std::int32_t index) {
        const LayoutItem& item = layout[index];
        if (item.kind == ItemKind::clip) return visitClipped(item);
        if (item.kind == ItemKind::scale) return visitScaled(item);
        shapes ? drawShapes(item) : drawRest(item);
        visitChildren(item);
    }

private:
    void visitChildren(const LayoutItem& item) {
        for (std::int32_t child = item.firstChild; child >= 0; child = layout[child].nextSibling) visit(child);
    }

    void visitClipped(const LayoutItem& item) {
        const auto& clip = std::get<Clip>(*item.modifier);
        const CGRect rect = drawn(item.frame);
        const CGRect visible = seen ? platform::CGRectIntersection(*seen, rect) : rect;
        if (platform::CGRectIsNull(visible) || visible.width() <= 0 || visible.height() <= 0) return;
        const double radius = std::min({clip.radius * scale, rect.width() / 2, rect.height() / 2});
        const std::size_t before = into.operations.size();
        into.operations.emplace_back(platform::BeginClip{rect, radius, clip.corners});
        const auto around = std::exchange(seen, visible);
        visitChildren(item);
        seen = around;
        if (into.operations.size() == before + 1)
            into.operations.pop_back();
        else
            into.operations.emplace_back(platform::EndClip{});
    }

    void visitScaled(const LayoutItem& item) {
        const double factor = std::get<ScaleEffect>(*item.modifier).factor;
        const double scaleAround = scale;
        const CGPoint originAround = origin;
        origin = {origin.x + scale * (1 - factor) * item.frame.midX(),
                  origin.y + scale * (1 - factor) * item.frame.midY()};
        scale *= factor;
        visitChildren(item);
        scale = scaleAround;
        origin = originAround;
    }

    CGRect drawn(const CGRect& rect) const {
        if (scale == 1) return rect;
        return CGRectMake(origin.x + rect.minX() * scale, origin.y + rect.minY() * scale, rect.width() * scale,
                          rect.height() * scale);
    }
    Font drawn(Font font) const { return {font.size * scale, font.weight}; }

    template <typename Operation>
    void add(const CGRect& rect, Operation operation) {
        if (!seen || !platform::CGRectIsNull(platform::CGRectIntersection(*seen, rect)))
            into.operations.emplace_back(std::move(operation));
    }

    void drawShapes(const LayoutItem& item) {
        if (item.kind == ItemKind::shape) drawShape(item);
        if (item.kind == ItemKind::picture) {
            const auto& content = item.view->as<ImageContent>();
            const CGRect rect = drawn(item.frame);
            add(rect, platform::DrawImage{content.picture, rect, content.interpolation});
        }
        if (item.kind == ItemKind::wrapped) item.view->as<RepresentableContent>().made->view->drawShapes(into);
        if (item.kind == ItemKind::divider) {
            const CGRect rect = crisp(drawn(item.frame));
            add(rect, platform::FillShape{{rect, 0, CornerStyle::circular}, Color::of(ColorRole::separator)});
        }
    }

    void drawRest(const LayoutItem& item) {
        if (item.kind == ItemKind::text) drawText(item);
        if (item.kind == ItemKind::wrapped) item.view->as<RepresentableContent>().made->view->drawText(into);
        if (item.kind == ItemKind::symbol && isVisible(item.color)) {
            const CGRect rect = drawn(item.frame);
            add(rect,
                platform::DrawSymbol{item.view->as<ImageContent>().systemName, drawn(item.font), item.color, rect});
        }
    }

    void drawShape(const LayoutItem& item) {
        const CGRect rect = crisp(drawn(item.frame));
        if (rect.width() <= 0 || rect.height() <= 0 || !isVisible(item.color)) return;
        const auto& shape = item.view->as<ShapeContent>();
        platform::RoundedShape outline = shapeIn(rect, shape);
        if (shape.style != ShapeStyle::strokedInside) {
            add(rect, platform::FillShape{outline, item.color});
            return;
        }
        const double half = shape.lineWidth / 2;
        outline.rect = platform::CGRectInset(rect, half, half);
        outline.radius = std::max(0.0, outline.radius - half);
        add(rect, platform::StrokeShape{outline, item.color, shape.lineWidth});
    }

    void drawText(const LayoutItem& item) {
        const std::string& shown = item.view->as<TextContent>().text;
        if (shown.empty() || !isVisible(item.color)) return;
        constexpr double roundingError = 0.01;  // of shares of a length, which must not cost a text its middle
        const bool fits = item.natural.width <= item.frame.width() + roundingError;
        const double lineHeight = text.metrics(item.font).lineHeight();
        const TextStyle& style = item.textStyle;
        if (item.frame.height() < lineHeight * 1.5 && (fits || style.lineLimit == 1)) {
            addLine(fits ? shown : shortened(item, shown), item, item.frame);
            return;
        }
        CGRect rect = item.frame;
        rect.size.height = lineHeight;
        for (const std::string& line :
             text.lines(shown, item.font, item.frame.width() + roundingError, style.lineLimit, style.truncation)) {
            rect.size.width = text.width(line, item.font);
            rect.origin.x = item.frame.minX() + offsetOf(style.alignment, item.frame.width() - rect.width());
            addLine(line, item, rect);
            rect.origin.y += lineHeight;
        }
    }

    std::string shortened(const LayoutItem& item, const std::string& shown) {
        if (item.textStyle.truncation == TextTruncation::middle)
            return text.truncatedInMiddle(shown, item.font, item.frame.width());
        return text.lines(shown, item.font, item.frame.width(), 1, TextTruncation::tail).front();
    }

    void addLine(std::string line, const LayoutItem& item, const CGRect& frame) {
        const CGRect rect = drawn(frame);
        if (!line.empty()) add(rect, platform::DrawText{std::move(line), drawn(item.font), item.color, rect});
    }

    const Layout& layout;
    platform::TextSystem& text;
    platform::Drawing& into;
    const bool shapes;
    std::optional<CGRect> seen;  // what all clips around leave
    double scale = 1;
    CGPoint origin;
};

}  // namespace

void draw(const Layout& layout, platform::TextSystem& text, platform::Drawing& into) {
    into.operations.clear();
    if (layout.isEmpty()) return;
    Walk(layout, text, into, true).visit(layout.root());
    Walk(layout, text, into, false).visit(layout.root());
}

}  // namespace views
