#include "desk/display/Icons.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <string>

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;
using platform::Color;
using platform::ColorRole;
using platform::Font;
using platform::FontWeight;

// A part of a square, in fractions of its side, on half points so that edges stay sharp at 2x.
CGRect part(const CGRect& square, double x, double y, double width, double height) {
    const auto snap = [](double value) { return std::round(value * 2) / 2; };
    const double side = square.width();
    const double left = snap(square.minX() + x * side);
    const double top = snap(square.minY() + y * side);
    return CGRectMake(left, top, snap(square.minX() + (x + width) * side) - left,
                      snap(square.minY() + (y + height) * side) - top);
}

CGRect plate(DrawingBuilder& builder, const CGRect& square, Color color) {
    const CGRect rect = part(square, 0.06, 0.06, 0.88, 0.88);
    builder.fill(rect, color, rect.width() * 0.225);
    builder.fill(CGRectMake(rect.minX(), rect.minY(), rect.width(), rect.height()), Color::of(ColorRole::white, 0.08),
                 rect.width() * 0.225);
    return rect;
}

void drawFinder(DrawingBuilder& builder, const CGRect& square) {
    const CGRect rect = plate(builder, square, Color::hex(0x1E88F7));
    drawFolderIcon(builder, part(rect, 0.16, 0.14, 0.68, 0.68));
}

void drawTerminal(DrawingBuilder& builder, const CGRect& square) {
    const CGRect rect = plate(builder, square, Color::hex(0x26282C));
    const double size = std::max(6.0, std::floor(rect.width() * 0.3));
    builder.text(">_", {size, FontWeight::semibold}, Color::of(ColorRole::white), part(rect, 0.14, 0.16, 0.8, 0.4));
}

void drawEditor(DrawingBuilder& builder, const CGRect& square) {
    const CGRect rect = plate(builder, square, Color::hex(0x2563C9));
    const double size = std::max(6.0, std::floor(rect.width() * 0.34));
    builder.text("{ }", {size, FontWeight::bold}, Color::of(ColorRole::white), rect, TextAlignment::center);
}

struct KnownIcon {
    std::string_view name;
    void (*draw)(DrawingBuilder&, const CGRect&);
};
constexpr std::array knownIcons{KnownIcon{"Finder", drawFinder}, KnownIcon{"Terminal", drawTerminal},
                                KnownIcon{"TextEdit", drawEditor}, KnownIcon{"Visual Studio Code", drawEditor}};

constexpr std::array<std::uint32_t, 7> plateColors{0x3BA55D, 0xE8743B, 0x8E5BD0, 0xD6457A,
                                                   0x2AA3B8, 0xC99A16, 0x5668D8};

// The same on every run, unlike std::hash.
std::uint32_t colorOf(std::string_view name) {
    std::uint32_t sum = 7;
    for (const char character : name) sum = sum * 31 + static_cast<unsigned char>(character);
    return plateColors[sum % plateColors.size()];
}

void drawInitial(DrawingBuilder& builder, const CGRect& square, std::string_view name) {
    const CGRect rect = plate(builder, square, Color::hex(colorOf(name)));
    std::size_t length = std::min<std::size_t>(1, name.size());
    while (length < name.size() && (static_cast<unsigned char>(name[length]) & 0xC0U) == 0x80U) ++length;
    std::string initial(name.substr(0, length));
    if (length == 1) initial[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(initial[0])));
    builder.text(initial, {std::max(7.0, std::floor(rect.width() * 0.52)), FontWeight::semibold},
                 Color::of(ColorRole::white), rect, TextAlignment::center);
}

}  // namespace

void drawFolderIcon(DrawingBuilder& builder, const CGRect& square) {
    const double radius = std::max(1.0, square.width() * 0.08);
    builder.fill(part(square, 0.04, 0.14, 0.44, 0.3), Color::hex(0x3E9FE8), radius);
    builder.fill(part(square, 0.04, 0.22, 0.92, 0.64), Color::hex(0x3E9FE8), radius);
    builder.fill(part(square, 0.04, 0.32, 0.92, 0.54), Color::hex(0x6CC0FA), radius);
}

void drawDocumentIcon(DrawingBuilder& builder, const CGRect& square) {
    const CGRect page = part(square, 0.17, 0.04, 0.66, 0.92);
    const double radius = std::max(1.0, square.width() * 0.06);
    builder.fill(page, Color::of(ColorRole::white), radius);
    builder.border(page, Color::hex(0x9A9AA0), square.width() >= 32 ? 1 : 0.5, radius);
    for (const double y : {0.3, 0.46, 0.62}) {
        const CGRect line = part(page, 0.2, y * 1.3, y > 0.6 ? 0.36 : 0.6, 0);
        builder.fill(CGRectMake(line.minX(), line.minY(), line.width(), std::max(0.5, std::round(square.width() / 24))),
                     Color::hex(0xB4B4BA));
    }
}

void drawWindowIcon(DrawingBuilder& builder, const CGRect& square) {
    const CGRect window = part(square, 0.02, 0.16, 0.96, 0.7);
    const CGRect bar = part(window, 0, 0, 1, 0.16);
    builder.fill(window, builder.shade(0xFFFFFF, 0x1E1E1E), 3);
    builder.fill(bar, builder.shade(0xE2E1E3, 0x3A393C), 3);
    drawFolderIcon(builder, part(square, 0.28, 0.34, 0.44, 0.44));
    builder.border(window, Color::of(ColorRole::primary, 0.25), 0.5, 3);
}

void drawApplicationIcon(DrawingBuilder& builder, const CGRect& square, std::string_view name) {
    const auto known =
        std::find_if(knownIcons.begin(), knownIcons.end(), [name](const KnownIcon& icon) { return icon.name == name; });
    if (known != knownIcons.end())
        known->draw(builder, square);
    else
        drawInitial(builder, square, name);
}

}  // namespace desk
