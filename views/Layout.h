// Where everything stands: the tree of frames of one evaluated tree, as a value. Drawing, hit testing, accessibility
// and tests read it; LayoutPass.h makes it. Frames are in view space: points from the top left of the host, y downward.
// It refers into the tree it was made from.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "views/ControlState.h"
#include "views/TextStyle.h"
#include "views/View.h"

namespace views {

struct LayoutItem {
    static constexpr std::int32_t none = -1;

    const LayoutRule* rule = nullptr;
    const Node* node = nullptr;  // the same rule, unless it is a modifier's
    View* view = nullptr;
    const Modifier* modifier = nullptr;  // of items that stem from one
    const std::string* key = nullptr;    // identity among repeated siblings
    const char* identifier = nullptr;    // for scripts, tests and assistive tools
    std::int32_t parent = none;
    std::int32_t firstChild = none;
    std::int32_t nextSibling = none;
    CGRect frame;

    double priority = 0;
    Font font;
    Color color;
    TextStyle textStyle;
    ControlState control;
    bool isVertical = false;  // of a spacer and a divider: the axis of the stack around it
    bool clips = false;       // nothing inside is seen or pressed outside its frame
    CGSize natural;           // of text and pictures
    std::size_t kept = 0;     // where the pass keeps the surroundings of content that is declared during layout

    ProposedSize offered;  // by the parent, last
    ProposedSize shared;   // of a stack: the proposal that its children's offers were worked out for
    bool isShared = false;

    // What it answered in this pass. Left as they are until they count.
    struct Answer {
        double proposedWidth;
        double proposedHeight;
        double width;
        double height;
    };
    std::array<Answer, 3> answers;
    std::uint8_t answerCount = 0;
    std::uint8_t nextAnswer = 0;

    // Written out so that `answers` isn't cleared for every item of every pass.
    LayoutItem() {}  // NOLINT(cppcoreguidelines-pro-type-member-init,modernize-use-equals-default)
};

class Layout {
public:
    const LayoutItem& operator[](std::int32_t index) const { return items[static_cast<std::size_t>(index)]; }
    LayoutItem& operator[](std::int32_t index) { return items[static_cast<std::size_t>(index)]; }
    bool isEmpty() const { return items.empty(); }
    std::int32_t root() const { return 0; }

    // In paint order: a parent before its children, what is behind before what is in front.
    template <typename Visit>
    void forEach(Visit visit) const {
        if (!isEmpty()) visitFrom(root(), visit);
    }

    // The frontmost item at the point that `accepts` takes; a view counts as in front of what contains it.
    template <typename Accept>
    std::optional<std::int32_t> frontmost(CGPoint point, Accept accepts) const {
        return isEmpty() ? std::nullopt : frontmostFrom(root(), point, accepts);
    }

    // What an item's place is called, the same from one layout to the next: ordinals and keys from the root down.
    std::string placeOf(std::int32_t index) const;
    // One line an item, indented by depth: what it is, its text and its frame. For tests and for looking.
    std::string description() const;

    std::vector<LayoutItem> items;
    // Those that a host has to look after, so that it needn't search.
    std::vector<std::int32_t> popovers;
    std::vector<std::int32_t> wrappedViews;

private:
    template <typename Visit>
    void visitFrom(std::int32_t index, Visit& visit) const {
        visit(index, (*this)[index]);
        for (std::int32_t child = (*this)[index].firstChild; child >= 0; child = (*this)[child].nextSibling)
            visitFrom(child, visit);
    }

    template <typename Accept>
    std::optional<std::int32_t> frontmostFrom(std::int32_t index, CGPoint point, Accept& accepts) const {
        std::optional<std::int32_t> found;
        if ((*this)[index].clips && !CGRectContainsPoint((*this)[index].frame, point)) return found;
        for (std::int32_t child = (*this)[index].firstChild; child >= 0; child = (*this)[child].nextSibling)
            if (const auto inside = frontmostFrom(child, point, accepts)) found = inside;
        if (found) return found;
        const LayoutItem& item = (*this)[index];
        if (CGRectContainsPoint(item.frame, point) && accepts(item)) return index;
        return std::nullopt;
    }
};

}  // namespace views
