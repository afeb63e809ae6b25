// The modifiers that are plain numbers and apply to one child: they are kept inside the view they modify, in order from
// the inside out. Those that carry closures or further views (background, popover, ...) are nodes of their own.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <variant>

#include "platform/Drawing.h"
#include "platform/Text.h"
#include "views/Alignment.h"
#include "views/ProposedSize.h"

namespace views {

using platform::Color;
using platform::ColorRole;
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
// The pointer is to a literal.
struct AccessibilityIdentifier {
    const char* name = "";
    friend bool operator==(const AccessibilityIdentifier& a, const AccessibilityIdentifier& b) {
        return std::strcmp(a.name, b.name) == 0;
    }
};

using Modifier =
    std::variant<EdgeInsets, FixedFrame, FlexibleFrame, FixedSize, Clip, ScaleEffect, Font, Color, LineLimit,
                 TextTruncation, HorizontalAlignment, LayoutPriority, Opacity, AccessibilityIdentifier>;
static_assert(std::is_trivially_copyable_v<Modifier>);

// Room for the few modifiers that one view has, without an allocation.
class ModifierList {
public:
    static constexpr std::size_t capacity = 4;

    ModifierList() = default;
    ModifierList(const ModifierList& other) noexcept { assign(other); }
    ModifierList& operator=(const ModifierList& other) noexcept {
        assign(other);
        return *this;
    }

    bool isFull() const { return count == capacity; }
    bool isEmpty() const { return count == 0; }
    std::size_t size() const { return count; }
    void append(const Modifier& modifier) {
        std::memcpy(storage.data() + count * sizeof(Modifier), static_cast<const void*>(&modifier), sizeof(Modifier));
        count += 1;
    }
    const Modifier* begin() const { return reinterpret_cast<const Modifier*>(storage.data()); }
    const Modifier* end() const { return begin() + count; }
    const Modifier& operator[](std::size_t index) const { return begin()[index]; }

    friend bool operator==(const ModifierList& a, const ModifierList& b);

private:
    void assign(const ModifierList& other) noexcept {
        count = other.count;
        std::memcpy(storage.data(), other.storage.data(), count * sizeof(Modifier));
    }

    std::size_t count = 0;
    alignas(Modifier) std::array<std::byte, capacity * sizeof(Modifier)> storage;
};

}  // namespace views
