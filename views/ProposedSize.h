// What a parent offers a child in layout: a length, infinity ("as much as you like"), or nothing at all on an axis
// ("your ideal").
#pragma once

#include <algorithm>
#include <limits>

namespace views {

inline constexpr double infinity = std::numeric_limits<double>::infinity();
// No length is negative, so this one says that none was given.
inline constexpr double unspecified = -1;
// What a view without a size of its own takes along an axis on which it is offered nothing.
inline constexpr double withoutPreference = 10;

// Pass it by reference: by value, GCC 12 writes it as two halves and reads it back as a whole, which stalls the
// processor; half of the layout's time went there.
struct ProposedSize {
    double width = unspecified;
    double height = unspecified;
    friend bool operator==(const ProposedSize&, const ProposedSize&) = default;
};

constexpr double orElse(double offered, double otherwise) {
    return offered == unspecified ? otherwise : offered;
}
constexpr double reduced(double offered, double insets) {
    return offered == unspecified ? unspecified : std::max(0.0, offered - insets);
}

}  // namespace views
