#include "app/PathBarDesignPreview.h"

#include <array>
#include <utility>

namespace brindle {

using namespace views;

namespace {

constexpr double capsuleRadius = infinity;
constexpr double noOutline = 0;

struct SampleStyle {
    double radius;
    bool hasBaseFill;  // white or black, by the scheme
    double lineWidth;
    Color line;
};

// In the order of the enumeration.
constexpr std::array<SampleStyle, 5> sampleStyles{{{8, true, 2, Color::of(ColorRole::accent, 0.65)},
                                                   {6, true, 1, Color::of(ColorRole::primary, 0.18)},
                                                   {capsuleRadius, false, 1, Color::of(ColorRole::primary, 0.16)},
                                                   {4, true, noOutline, Color::of(ColorRole::accent)},
                                                   {5, true, 1.5, Color::of(ColorRole::primary, 0.45)}}};

View sampleDivider() {
    return Rectangle().fill(Color::of(ColorRole::primary, 0.12)).frame({.width = 1, .height = 16});
}

View sampleChevron() {
    return Image("chevron.right").font({7, FontWeight::bold}).foregroundStyle(ColorRole::secondary);
}

}  // namespace

// Of the texts the longest alone gives way where there is too little room.
View PathBarDesignPreview::body() const {
    return HStack({.spacing = 5}, Text("Orvane").font({9, FontWeight::semibold}).foregroundStyle(ColorRole::secondary),
                  sampleDivider(), Image("internaldrive").font({10}), Text("Macintosh HD").layoutPriority(-1),
                  sampleChevron(), Text("Users"), sampleChevron(), Text("Project").foregroundStyle(ColorRole::accent),
                  Spacer(0), sampleDivider(), Image("doc.on.doc").foregroundStyle(ColorRole::secondary))
        .font({10})
        .lineLimit(1)
        .truncationMode(platform::TextTruncation::tail)
        .padding(Edge::horizontal, 10)
        .frame({.maxHeight = infinity})
        .background(background());
}

View PathBarDesignPreview::background() const {
    const SampleStyle& style = sampleStyles[static_cast<std::size_t>(design)];
    const bool isLight = colorScheme.get() == platform::ColorScheme::light;
    const ColorRole base = isLight ? ColorRole::white : ColorRole::black;
    const Shape shape = RoundedRectangle(style.radius);
    View plate = shape.fill(Color::of(style.hasBaseFill ? base : ColorRole::windowBackground));
    if (style.lineWidth == noOutline)
        return std::move(plate).overlay(Rectangle().fill(style.line).frame({.height = 2}), Alignment::bottom);
    return std::move(plate).overlay(shape.stroke(style.line, style.lineWidth));
}

}  // namespace brindle
