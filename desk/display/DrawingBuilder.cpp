#include "desk/display/DrawingBuilder.h"

#include <cmath>
#include <utility>

#include "views/LaidOutView.h"

namespace desk {

using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
using platform::Color;
using platform::CornerStyle;
using platform::Font;

void DrawingBuilder::fill(const CGRect& rect, Color color, double radius) {
    drawing.operations.emplace_back(platform::FillShape{{rect, radius, CornerStyle::continuous}, color});
}

void DrawingBuilder::circle(const CGPoint& center, double diameter, Color color) {
    const CGRect rect = CGRectMake(center.x - diameter / 2, center.y - diameter / 2, diameter, diameter);
    drawing.operations.emplace_back(platform::FillShape{{rect, diameter / 2, CornerStyle::circular}, color});
}

void DrawingBuilder::border(const CGRect& rect, Color color, double lineWidth, double radius) {
    const CGRect inner = CGRectInset(rect, lineWidth / 2, lineWidth / 2);
    const double innerRadius = std::max(0.0, radius - lineWidth / 2);
    drawing.operations.emplace_back(
        platform::StrokeShape{{inner, innerRadius, CornerStyle::continuous}, color, lineWidth});
}

void DrawingBuilder::symbol(std::string_view name, Font font, Color color, const CGRect& box) {
    drawing.operations.emplace_back(platform::DrawSymbol{std::string(name), font, color, box});
}

void DrawingBuilder::text(std::string_view text, Font font, Color color, const CGRect& box, TextAlignment alignment) {
    std::string shown = measure.truncatedInMiddle(text, font, box.width());
    const double taken = measure.width(shown, font);
    const double spare = std::max(0.0, box.width() - taken);
    const double before = alignment == TextAlignment::left ? 0 : alignment == TextAlignment::right ? spare : spare / 2;
    const double height = measure.metrics(font).lineHeight();
    const CGRect rect = CGRectMake(box.minX() + before, box.midY() - height / 2, taken, height);
    drawing.operations.emplace_back(platform::DrawText{std::move(shown), font, color, rect});
}

void DrawingBuilder::view(views::View view, const CGRect& box) {
    views::View placed = std::move(view)
                             .frame({.width = box.width(), .height = box.height()})
                             .padding({.top = box.minY(), .leading = box.minX()});
    for (auto& operation :
         views::LaidOutView(std::move(placed), {box.maxX(), box.maxY()}, measure).drawing().operations)
        drawing.operations.push_back(std::move(operation));
}

double DrawingBuilder::paragraph(std::string_view text, Font font, Color color, const CGRect& box) {
    const double height = measure.metrics(font).lineHeight();
    double y = box.minY();
    for (const std::string& line : lines(text, font, box.width())) {
        if (y + height > box.maxY()) break;
        this->text(line, font, color, CGRectMake(box.minX(), y, box.width(), height));
        y += height;
    }
    return y - box.minY();
}

std::vector<std::string> DrawingBuilder::lines(std::string_view text, Font font, double width) const {
    std::vector<std::string> result;
    std::string line;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        const std::string word(text.substr(at, end - at));
        std::string longer = line.empty() ? word : line + " " + word;
        if (!line.empty() && measure.width(longer, font) > width) {
            result.push_back(std::move(line));
            longer = word;
        }
        line = std::move(longer);
        at = end + 1;
    }
    if (!line.empty()) result.push_back(std::move(line));
    return result;
}

}  // namespace desk
