#include "app/DesignChoiceCard.h"

#include <string>
#include <utility>

#include "app/PathBarDesignPreview.h"

namespace brindle {

using namespace views;

View DesignChoiceCard::body() const {
    const Shape shape = RoundedRectangle(10);
    View label = VStack({.alignment = HorizontalAlignment::leading, .spacing = 10},
                        View(PathBarDesignPreview{design}).frame({.height = 40}),
                        HStack({.alignment = VerticalAlignment::top, .spacing = 6}, texts(), Spacer(), mark()));
    return Button(select, std::move(label)
                              .padding(11)
                              .background(shape.fill(isSelected ? Color::of(ColorRole::accent, 0.08)
                                                                : Color::of(ColorRole::windowBackground)))
                              .overlay(isSelected ? shape.stroke(Color::of(ColorRole::accent), 2)
                                                  : shape.stroke(Color::of(ColorRole::primary, 0.1), 1)))
        .buttonStyle(ButtonStyle::plain);
}

View DesignChoiceCard::texts() const {
    return VStack({.alignment = HorizontalAlignment::leading, .spacing = 3},
                  Text(std::string(title(design))).font({13, FontWeight::semibold}).foregroundStyle(ColorRole::primary),
                  Text(std::string(description(design))).font({11}).foregroundStyle(ColorRole::secondary));
}

View DesignChoiceCard::mark() const {
    return isSelected ? Image("checkmark.circle.fill").foregroundStyle(ColorRole::accent)
                      : Image("circle").foregroundStyle(Color::of(ColorRole::secondary, 0.45));
}

}  // namespace brindle
