// What is painted, as lines that a test can compare with what it works out itself: shapes and pictures, back to front. Texts and symbols are left out.
#pragma once

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "platform/Drawing.h"

namespace kit {

inline std::string roleName(platform::ColorRole role) {
    using platform::ColorRole;
    static const std::map<ColorRole, std::string> names{
        {ColorRole::windowBackground, "window"}, {ColorRole::controlBackground, "control"},
        {ColorRole::primary, "primary"},         {ColorRole::orange, "orange"},
        {ColorRole::accent, "accent"},           {ColorRole::white, "white"},
        {ColorRole::separator, "separator"},     {ColorRole::black, "black"},
        {ColorRole::secondary, "secondary"}};
    return names.at(role);
}

inline std::string line(const char* what, const platform::Color& color, const platform::RoundedShape& shape) {
    const platform::CGRect& rect = shape.rect;
    std::ostringstream text;
    text << what << roleName(color.role) << " " << color.opacity << " at " << rect.minX() << " " << rect.minY()
         << " is " << rect.width() << " " << rect.height() << " round "
         << std::min({shape.radius, rect.width() / 2, rect.height() / 2});
    return text.str();
}

inline std::string shortest(double number) {
    std::ostringstream text;
    text << number;
    return text.str();
}

inline std::vector<std::string> shapes(const platform::Drawing& drawing) {
    std::vector<std::string> lines;
    for (const auto& operation : drawing.operations) {
        if (const auto* fill = std::get_if<platform::FillShape>(&operation))
            lines.push_back(line(fill->shadow ? "shadowed " : "", fill->color, fill->shape));
        if (const auto* stroke = std::get_if<platform::StrokeShape>(&operation))
            lines.push_back(line("line ", stroke->color, stroke->shape) + " wide " + shortest(stroke->lineWidth));
        if (const auto* image = std::get_if<platform::DrawImage>(&operation))
            lines.push_back(line("icon ", {}, {image->rect, 0}));
    }
    return lines;
}

}  // namespace kit
