// Where a view stands inside something larger than itself, and which edges and axes a modifier is about. Leading is
// left: the system has no right-to-left layout.
#pragma once

#include <cstdint>

namespace views {

enum class HorizontalAlignment : std::uint8_t { leading, center, trailing };
enum class VerticalAlignment : std::uint8_t { top, center, bottom };

struct Alignment {
    HorizontalAlignment horizontal = HorizontalAlignment::center;
    VerticalAlignment vertical = VerticalAlignment::center;
    friend bool operator==(const Alignment&, const Alignment&) = default;

    static const Alignment center;
    static const Alignment leading;
    static const Alignment trailing;
    static const Alignment top;
    static const Alignment bottom;
    static const Alignment topLeading;
};

inline constexpr Alignment Alignment::center{};
inline constexpr Alignment Alignment::leading{HorizontalAlignment::leading, VerticalAlignment::center};
inline constexpr Alignment Alignment::trailing{HorizontalAlignment::trailing, VerticalAlignment::center};
inline constexpr Alignment Alignment::top{HorizontalAlignment::center, VerticalAlignment::top};
inline constexpr Alignment Alignment::bottom{HorizontalAlignment::center, VerticalAlignment::bottom};
inline constexpr Alignment Alignment::topLeading{HorizontalAlignment::leading, VerticalAlignment::top};

// How far from the leading or top edge something stands when there is this much room to spare.
constexpr double offsetOf(HorizontalAlignment alignment, double room) {
    return alignment == HorizontalAlignment::leading ? 0 : alignment == HorizontalAlignment::center ? room / 2 : room;
}
constexpr double offsetOf(VerticalAlignment alignment, double room) {
    return alignment == VerticalAlignment::top ? 0 : alignment == VerticalAlignment::center ? room / 2 : room;
}

enum class Edge : std::uint8_t {
    top = 1,
    leading = 2,
    bottom = 4,
    trailing = 8,
    horizontal = 10,
    vertical = 5,
    all = 15
};

constexpr bool contains(Edge set, Edge edge) {
    return (static_cast<unsigned>(set) & static_cast<unsigned>(edge)) != 0;
}

struct EdgeInsets {
    double top = 0;
    double leading = 0;
    double bottom = 0;
    double trailing = 0;
    friend bool operator==(const EdgeInsets&, const EdgeInsets&) = default;
};

}  // namespace views
