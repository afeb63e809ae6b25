// Puts together the drawings of what the desk itself shows: windows of other processes, menu bar, Dock, alerts. Points, origin at the top left, y
// downward. It measures text to place and shorten it; it paints nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Drawing.h"
#include "platform/Geometry.h"
#include "platform/Text.h"
#include "views/View.h"

namespace desk {

enum class TextAlignment { left, center, right };

class DrawingBuilder {
public:
    DrawingBuilder(platform::TextSystem& theText, platform::ColorScheme theScheme)
        : measure(theText), scheme(theScheme) {}

    bool isDark() const { return scheme == platform::ColorScheme::dark; }
    platform::Color shade(std::uint32_t light, std::uint32_t dark, double opacity = 1) const {
        return platform::Color::hex(isDark() ? dark : light, opacity);
    }

    void fill(const platform::CGRect& rect, platform::Color color, double radius = 0);
    void circle(const platform::CGPoint& center, double diameter, platform::Color color);
    // Inside the edge.
    void border(const platform::CGRect& rect, platform::Color color, double lineWidth, double radius = 0);
    void symbol(std::string_view name, platform::Font font, platform::Color color, const platform::CGRect& box);

    double width(std::string_view text, platform::Font font) const { return measure.width(text, font); }
    // One line in the middle of the box's height, shortened to its width.
    void text(std::string_view text, platform::Font font, platform::Color color, const platform::CGRect& box,
              TextAlignment alignment = TextAlignment::left);
    // Broken between words to the box's width, from its top, as many lines as there is room for; answers the height taken.
    double paragraph(std::string_view text, platform::Font font, platform::Color color, const platform::CGRect& box);

    void view(views::View view, const platform::CGRect& box);

    void beginClip(const platform::CGRect& rect) { drawing.operations.emplace_back(platform::BeginClip{rect}); }
    void endClip() { drawing.operations.emplace_back(platform::EndClip{}); }

    platform::Drawing drawing;

private:
    std::vector<std::string> lines(std::string_view text, platform::Font font, double width) const;

    platform::TextSystem& measure;
    platform::ColorScheme scheme;
};

}  // namespace desk
