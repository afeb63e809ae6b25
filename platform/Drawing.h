// What a window shows, as a value: a list of strokes of the brush in paint order, made by views/ and painted by the backend. Since it is
// plain data, tests and the benchmarks read it, and a port paints it with whatever the platform draws with.
// Coordinates are view space: points, origin at the top left of the window's content, y downward.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/Color.h"
#include "platform/Geometry.h"
#include "platform/Images.h"

namespace platform {

enum class FontWeight : std::uint8_t { regular, medium, semibold, bold };

// A face of the system font; the size is in points.
struct Font {
    double size = 13;
    FontWeight weight = FontWeight::regular;
    friend bool operator==(const Font&, const Font&) = default;
};

enum class CornerStyle : std::uint8_t { circular, continuous };

// A radius of half the height or more makes a capsule.
struct RoundedShape {
    CGRect rect;
    double radius = 0;
    CornerStyle corners = CornerStyle::circular;
    friend bool operator==(const RoundedShape&, const RoundedShape&) = default;
};

// What a shape throws behind itself: its form, blurred over about `radius` on either side of its edge, and moved by `offset`, y downward.
struct Shadow {
    Color color;
    double radius = 0;
    CGPoint offset;
    friend bool operator==(const Shadow&, const Shadow&) = default;
};

struct FillShape {
    RoundedShape shape;
    Color color;
    std::optional<Shadow> shadow{};
    friend bool operator==(const FillShape&, const FillShape&) = default;
};

// The line is centred on the shape's edge: who wants it inside insets the shape by half the width first.
struct StrokeShape {
    RoundedShape shape;
    Color color;
    double lineWidth = 1;
    friend bool operator==(const StrokeShape&, const StrokeShape&) = default;
};

enum class LineCap : std::uint8_t { butt, round };
enum class LineJoin : std::uint8_t { miter, round };

// A line through the points, open at its ends.
struct StrokePath {
    std::vector<CGPoint> points;
    Color color;
    double lineWidth = 1;
    LineCap cap = LineCap::butt;
    LineJoin join = LineJoin::miter;
    friend bool operator==(const StrokePath&, const StrokePath&) = default;
};

// One line of text, already shortened to fit, from the left edge of `rect`, which is as high as the font's line.
struct DrawText {
    std::string text;
    Font font;
    Color color;
    CGRect rect;
    friend bool operator==(const DrawText&, const DrawText&) = default;
};

// A symbol of the system's set, by name, centred in `rect`; it is as large as text of that font.
struct DrawSymbol {
    std::string name;
    Font font;
    Color color;
    CGRect rect;
    friend bool operator==(const DrawSymbol&, const DrawSymbol&) = default;
};

// Low is quick, high keeps what is fine when the picture is made smaller.
enum class ImageInterpolation : std::uint8_t { low, high };

// A picture, stretched to `rect`.
struct DrawImage {
    NSImage image;
    CGRect rect;
    ImageInterpolation interpolation = ImageInterpolation::low;
    friend bool operator==(const DrawImage&, const DrawImage&) = default;
};

// What follows is cut to the rectangle, with rounded corners if there is a radius, until the matching EndClip.
struct BeginClip {
    CGRect rect;
    double radius = 0;
    CornerStyle corners = CornerStyle::circular;
    friend bool operator==(const BeginClip&, const BeginClip&) = default;
};
struct EndClip {
    friend bool operator==(const EndClip&, const EndClip&) = default;
};

using DrawOperation =
    std::variant<FillShape, StrokeShape, StrokePath, DrawText, DrawSymbol, DrawImage, BeginClip, EndClip>;

struct Drawing {
    std::vector<DrawOperation> operations;
    friend bool operator==(const Drawing&, const Drawing&) = default;
};

}  // namespace platform
