#include "desk/look/Icons.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <string>

#include "views/Views.h"

namespace desk {

namespace {

using platform::Color;
using platform::ColorRole;
using platform::FontWeight;
using views::View;

constexpr double plateSide = 0.88;  // of the icon's
constexpr double plateRounding = 0.225;

struct Plate {
    std::string_view name;
    std::uint32_t color;
    std::string_view glyph;
    double glyphSize;              // of the plate's side
    const char* symbol = nullptr;  // in place of the glyph
};
constexpr std::array knownPlates{Plate{"Finder", 0x1E88F7, "", 0.68, "folder.icon"},
                                 Plate{"System Settings", 0x7A7A80, "", 0.6, "gearshape"},
                                 Plate{"Terminal", 0x26282C, ">_", 0.3}, Plate{"TextEdit", 0x2563C9, "{ }", 0.34},
                                 Plate{"Visual Studio Code", 0x2563C9, "{ }", 0.34}};
constexpr double initialSize = 0.52;

constexpr std::array<std::uint32_t, 7> plateColors{0x3BA55D, 0xE8743B, 0x8E5BD0, 0xD6457A,
                                                   0x2AA3B8, 0xC99A16, 0x5668D8};

// The same on every run, unlike std::hash.
std::uint32_t plateColorOf(std::string_view name) {
    std::uint32_t sum = 7;
    for (const char character : name) sum = sum * 31 + static_cast<unsigned char>(character);
    return plateColors[sum % plateColors.size()];
}

std::string initialOf(std::string_view name) {
    std::size_t length = std::min<std::size_t>(1, name.size());
    while (length < name.size() && (static_cast<unsigned char>(name[length]) & 0xC0U) == 0x80U) ++length;
    std::string initial(name.substr(0, length));
    if (length == 1) initial[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(initial[0])));
    return initial;
}

View glyphView(std::string_view glyph, double size) {
    return views::Text(std::string(glyph))
        .font({std::max(6.0, std::floor(size)), FontWeight::semibold})
        .foregroundStyle(ColorRole::white)
        .fixedSize();
}

View picture(const char* name, double side) {
    return views::Image(name).font({side, FontWeight::regular}).frame({.width = side, .height = side});
}

}  // namespace

View folderIcon(double side) {
    return picture("folder.icon", side);
}

View documentIcon(double side) {
    return picture("document.icon", side);
}

View applicationIcon(std::string_view name, double side) {
    const double plate = plateSide * side;
    const auto known =
        std::find_if(knownPlates.begin(), knownPlates.end(), [name](const Plate& each) { return each.name == name; });
    const bool isKnown = known != knownPlates.end();
    View glyph = !isKnown ? glyphView(initialOf(name), initialSize * plate)
                 : known->symbol != nullptr
                     ? picture(known->symbol, known->glyphSize * plate).foregroundStyle(ColorRole::white)
                     : glyphView(known->glyph, known->glyphSize * plate);
    const Color color = Color::hex(isKnown ? known->color : plateColorOf(name));
    return views::ZStack(
               {}, views::RoundedRectangle(plateRounding * plate).fill(color).frame({.width = plate, .height = plate}),
               std::move(glyph))
        .frame({.width = side, .height = side});
}

View windowIcon(const Shades& shades, double side) {
    const double height = 0.7 * side;
    constexpr double rounding = 3;
    return views::VStack({.spacing = 0},
                         views::Rectangle().fill(shades(0xE2E1E3, 0x3A393C)).frame({.height = 0.16 * height}),
                         folderIcon(0.44 * side).frame({.maxHeight = height}))
        .frame({.width = 0.96 * side, .height = height})
        .background(views::RoundedRectangle(rounding).fill(shades(0xFFFFFF, 0x1E1E1E)))
        .overlay(views::RoundedRectangle(rounding).strokeBorder(Color::of(ColorRole::primary, 0.25), 0.5))
        .frame({.width = side, .height = side});
}

}  // namespace desk
