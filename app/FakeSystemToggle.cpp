#include "app/FakeSystemToggle.h"

namespace brindle {

using namespace views;

namespace {

constexpr platform::Shadow knobShadow{Color::of(ColorRole::black, 0.16), 1, {0, 0.5}};

}  // namespace

View FakeSystemToggle::body() const {
    return ZStack({.alignment = Alignment::trailing},
                  Capsule().fill(Color::of(ColorRole::accent)).frame({.width = 30, .height = 17}),
                  Circle()
                      .fill(Color::of(ColorRole::white))
                      .frame({.width = 13, .height = 13})
                      .shadow(knobShadow)
                      .padding(Edge::trailing, 2))
        .accessibilityHidden();
}

}  // namespace brindle
