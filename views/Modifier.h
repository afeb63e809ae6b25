// The modifiers that are plain numbers and apply to one child: they are kept inside the view they modify, in order from
// the inside out. Those that carry closures or further views (background, popover, ...) are nodes of their own.
#pragma once

#include <cstdint>
#include <cstring>
#include <type_traits>
#include <variant>

#include "platform/Drawing.h"
#include "platform/Text.h"
#include "views/Alignment.h"
#include "views/LayoutRule.h"
#include "views/ProposedSize.h"
#include "views/Surroundings.h"

namespace views {

using platform::Color;
using platform::ColorRole;
using platform::CornerStyle;
using platform::Font;
using platform::FontWeight;
using platform::TextTruncation;

// The arguments of frame(): a fixed length on an axis, or limits within which it follows what is offered.
struct FrameArguments {
    double width = unspecified;
    double height = unspecified;
    double minWidth = unspecified;
    double maxWidth = unspecified;
    double minHeight = unspecified;
    double maxHeight = unspecified;
    Alignment alignment = Alignment::center;
};

struct FixedFrame {
    double width = unspecified;
    double height = unspecified;
    Alignment alignment;
    friend bool operator==(const FixedFrame&, const FixedFrame&) = default;
};
struct FlexibleFrame {
    double minWidth = unspecified;
    double maxWidth = unspecified;
    double minHeight = unspecified;
    double maxHeight = unspecified;
    Alignment alignment;
    friend bool operator==(const FlexibleFrame&, const FlexibleFrame&) = default;
};
struct FixedSize {
    bool horizontal = true;
    bool vertical = true;
    friend bool operator==(const FixedSize&, const FixedSize&) = default;
};
struct LayoutPriority {
    double value = 0;
    friend bool operator==(const LayoutPriority&, const LayoutPriority&) = default;
};
struct Opacity {
    double value = 1;
    friend bool operator==(const Opacity&, const Opacity&) = default;
};
// Of the texts inside: at most so many lines; 0 for as many as they take.
struct LineLimit {
    std::uint32_t lines = 0;
    friend bool operator==(const LineLimit&, const LineLimit&) = default;
};
// Nothing inside is drawn or takes clicks outside the view's frame, with rounded corners if there is a radius.
struct Clip {
    double radius = 0;
    platform::CornerStyle corners = platform::CornerStyle::circular;
    friend bool operator==(const Clip&, const Clip&) = default;
};
// Drawn larger or smaller about the middle of the frame, which stays as it is.
struct ScaleEffect {
    double factor = 1;
    friend bool operator==(const ScaleEffect&, const ScaleEffect&) = default;
};
struct Disabled {
    bool value = true;
    friend bool operator==(const Disabled&, const Disabled&) = default;
};
// The pointer is to a literal.
struct AccessibilityIdentifier {
    const char* name = "";
    friend bool operator==(const AccessibilityIdentifier& a, const AccessibilityIdentifier& b) {
        return std::strcmp(a.name, b.name) == 0;
    }
};

using Modifier = std::variant<EdgeInsets, FixedFrame, FlexibleFrame, FixedSize, Clip, ScaleEffect, Font, Color,
                              LineLimit, TextTruncation, HorizontalAlignment, Opacity, Disabled, ButtonStyle,
                              KeyboardShortcut, LayoutPriority, AccessibilityIdentifier>;
static_assert(std::is_trivially_copyable_v<Modifier>);

// Those that change frames or drawing are items of the layout around the rest; each rule is in modifiers/.
const LayoutRule& ruleOf(const EdgeInsets& padding);
const LayoutRule& ruleOf(const FixedFrame& frame);
const LayoutRule& ruleOf(const FlexibleFrame& frame);
const LayoutRule& ruleOf(const FixedSize& fixed);
const LayoutRule& ruleOf(const Clip& clip);
const LayoutRule& ruleOf(const ScaleEffect& effect);

// Those that go down to what is inside.
inline void apply(const Font& font, Surroundings& inside) {
    inside.font = font;
}
inline void apply(const Color& color, Surroundings& inside) {
    inside.color = color;
}
inline void apply(const LineLimit& limit, Surroundings& inside) {
    inside.textStyle.lineLimit = limit.lines;
}
inline void apply(const TextTruncation& truncation, Surroundings& inside) {
    inside.textStyle.truncation = truncation;
}
inline void apply(const HorizontalAlignment& alignment, Surroundings& inside) {
    inside.textStyle.alignment = alignment;
}
inline void apply(const Opacity& opacity, Surroundings& inside) {
    inside.opacity *= opacity.value;
}
inline void apply(const Disabled& disabled, Surroundings& inside) {
    inside.control.isEnabled = inside.control.isEnabled && !disabled.value;
}
inline void apply(const ButtonStyle& style, Surroundings& inside) {
    inside.control.style = style;
}
inline void apply(const KeyboardShortcut& shortcut, Surroundings& inside) {
    inside.control.shortcut = shortcut;
}

}  // namespace views
