#include "app/MenuBarIcon.h"

#include "platform/NSGraphicsContext.h"

namespace brindle {

namespace {

using platform::Color;
using platform::ColorRole;
using platform::NSBezierPath;

constexpr platform::CGSize iconSize{22, 18};
constexpr double glyphWidth = 1.4;

NSBezierPath glyph() {
    NSBezierPath path;
    path.lineWidth = glyphWidth;
    path.lineCapStyle = platform::LineCap::round;
    return path;
}

bool draw(platform::NSGraphicsContext& context) {
    context.setStroke(Color::of(ColorRole::black));
    context.setFill(Color::of(ColorRole::black));

    NSBezierPath plate = NSBezierPath::roundedRect(platform::CGRectMake(1, 3, 20, 12), 3);
    plate.lineWidth = 1.5;
    context.stroke(plate);

    context.fill(NSBezierPath::ovalIn(platform::CGRectMake(4, 7, 4, 4)));

    NSBezierPath chevron = glyph();
    chevron.lineJoinStyle = platform::LineJoin::round;
    chevron.move({10, 7});
    chevron.line({12, 9});
    chevron.line({10, 11});
    context.stroke(chevron);

    NSBezierPath path = glyph();
    path.move({14, 9});
    path.line({18, 9});
    context.stroke(path);
    return true;
}

platform::NSImage made() {
    platform::NSImage icon(iconSize, false,
                           [](platform::NSGraphicsContext& context, const platform::CGRect&) { return draw(context); });
    icon.setTemplate(true);
    return icon;
}

}  // namespace

const platform::NSImage& MenuBarIcon::image() {
    static const platform::NSImage icon = made();
    return icon;
}

}  // namespace brindle
