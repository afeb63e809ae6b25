#include "views/DrawingOfLayout.h"

#include <algorithm>
#include <cmath>

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

void drawShape(const LayoutItem& item, platform::Drawing& into) {
    const CGRect rect = crisp(item.frame);
    if (rect.width() <= 0 || rect.height() <= 0 || !isVisible(item.color)) return;
    const auto& shape = item.view->as<ShapeContent>();
    platform::RoundedShape outline = shapeIn(rect, shape);
    if (shape.style != ShapeStyle::strokedInside) {
        into.operations.emplace_back(platform::FillShape{outline, item.color});
        return;
    }
    const double half = shape.lineWidth / 2;
    outline.rect = platform::CGRectInset(rect, half, half);
    outline.radius = std::max(0.0, outline.radius - half);
    into.operations.emplace_back(platform::StrokeShape{outline, item.color, shape.lineWidth});
}

void drawText(const LayoutItem& item, platform::TextSystem& text, platform::Drawing& into) {
    const auto& content = item.view->as<TextContent>();
    if (content.text.empty() || !isVisible(item.color)) return;
    constexpr double roundingError = 0.01;  // of shares of a length, which must not cost a text its middle
    const bool fits = item.natural.width <= item.frame.width() + roundingError;
    into.operations.emplace_back(
        platform::DrawText{fits ? content.text : text.truncatedInMiddle(content.text, item.font, item.frame.width()),
                           item.font, item.color, item.frame});
}

}  // namespace

void draw(const Layout& layout, platform::TextSystem& text, platform::Drawing& into) {
    into.operations.clear();
    layout.forEach([&](std::int32_t, const LayoutItem& item) {
        if (item.kind == ItemKind::shape) drawShape(item, into);
        if (item.kind == ItemKind::wrapped) item.view->as<RepresentableContent>().made->view->drawShapes(into);
        if (item.kind == ItemKind::divider)
            into.operations.emplace_back(
                platform::FillShape{{crisp(item.frame), 0, CornerStyle::circular}, Color::of(ColorRole::separator)});
    });
    layout.forEach([&](std::int32_t, const LayoutItem& item) {
        if (item.kind == ItemKind::text) drawText(item, text, into);
        if (item.kind == ItemKind::wrapped) item.view->as<RepresentableContent>().made->view->drawText(into);
        if (item.kind == ItemKind::symbol && isVisible(item.color))
            into.operations.emplace_back(
                platform::DrawSymbol{item.view->as<ImageContent>().systemName, item.font, item.color, item.frame});
    });
}

}  // namespace views
