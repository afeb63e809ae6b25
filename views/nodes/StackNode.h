// Views in a row or in a column: HStack and VStack. Higher layout priorities get their length first, and among equals the least flexible.
#pragma once

#include "views/View.h"

namespace views {

inline constexpr double defaultSpacing = 8;

class StackNode final : public NodeOf<StackNode> {
public:
    enum class Direction : std::uint8_t { horizontal, vertical };

    StackNode(Direction direction, Alignment theAlignment, double theSpacing)
        : alignment(theAlignment), isVertical(direction == Direction::vertical), spacing(theSpacing) {}

    const char* name() const override { return isVertical ? "vStack" : "hStack"; }
    bool looksLike(const Node& other) const override;
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override {
        return remembered(pass, index, proposal);
    }
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override;
    // A row is one entry of a menu.
    void addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const override;

protected:
    CGSize measureAnew(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;

private:
    class Sharing;

    Alignment alignment;
    bool isVertical;
    double spacing;
};

struct HStackArguments {
    VerticalAlignment alignment = VerticalAlignment::center;
    double spacing = defaultSpacing;
};
struct VStackArguments {
    HorizontalAlignment alignment = HorizontalAlignment::center;
    double spacing = defaultSpacing;
};

template <typename... Children>
View HStack(HStackArguments arguments, Children&&... children) {
    View view{StackNode(StackNode::Direction::horizontal, {HorizontalAlignment::center, arguments.alignment},
                        arguments.spacing)};
    view.addChildren(std::forward<Children>(children)...);
    return view;
}

template <typename... Children>
View VStack(VStackArguments arguments, Children&&... children) {
    View view{
        StackNode(StackNode::Direction::vertical, {arguments.alignment, VerticalAlignment::center}, arguments.spacing)};
    view.addChildren(std::forward<Children>(children)...);
    return view;
}

}  // namespace views
