// Works out a Layout by the proposal model: a parent proposes a size, the child answers the size it takes, the parent
// places it. One object lays out one tree once. How each kind of item does that is its rule's; the pass knows none.
#pragma once

#include <functional>
#include <vector>

#include "platform/Text.h"
#include "views/Layout.h"
#include "views/Surroundings.h"

namespace views {

// Where new items are linked in, and whether there may be several.
struct Siblings {
    std::int32_t parent = LayoutItem::none;
    std::int32_t last = LayoutItem::none;
    bool canBeMany = false;
};

// What has been said about the next item before it exists.
struct Pending {
    const std::string* key = nullptr;
    const char* identifier = nullptr;
    double priority = 0;
    std::int32_t outermost = LayoutItem::none;
};

// Where the items of one view go.
struct Opening {
    Siblings& siblings;
    Pending& pending;
    const Surroundings& around;
};

class LayoutPass {
public:
    // Makes sure that the view's children are what `declare` answers, with the state of those before.
    using Declaration = std::function<void(std::vector<View>& children)>;
    using Redeclare = std::function<void(View& view, const Declaration& declare)>;

    LayoutPass(platform::TextSystem& theText, Redeclare theRedeclare, Layout& into);

    // The root is offered the whole size, and centred in it.
    void layOut(View& root, CGSize size);
    // What the root takes when it is offered nothing; places nothing.
    CGSize idealSize(View& root);

    // For nodes and modifiers, in the three steps of a pass. Items are named by index: the list may grow while one is placed.
    LayoutItem& operator[](std::int32_t index) { return layout[index]; }

    void append(View& view, Siblings& siblings, const Surroundings& around);
    // The view's items in place of those of the one around it.
    void appendInstead(View& view, const Opening& opening);
    std::int32_t open(const Node& node, View& view, const Opening& opening);
    // With font, colour and whatever else a view needs that shows something itself.
    LayoutItem& openLeaf(const Node& node, View& view, const Opening& opening);

    CGSize measure(std::int32_t index, const ProposedSize& proposal) {
        return layout[index].rule->measure(*this, index, proposal);
    }

    void place(std::int32_t index, const CGRect& frame) {
        layout[index].frame = frame;
        layout[index].rule->place(*this, index, frame);
    }
    void placeAligned(std::int32_t child, const CGRect& inside, Alignment alignment, const ProposedSize& offered);
    // For views whose content depends on their place.
    void redeclare(View& view, const Declaration& declare) { redeclareChildren(view, declare); }
    // Surroundings for later, by number.
    std::size_t keep(const Surroundings& around);
    Surroundings kept(std::size_t number) const { return keptSurroundings[number]; }

    const platform::FontMetrics& metrics(Font font);

    // A child of a stack that wants a part of its length.
    struct Claim {
        std::int32_t child;
        double priority;
        double minimum;
        double flexibility;
    };
    std::vector<Claim> claims;
    // What can be seen of the item that is being placed.
    CGRect visible;
    platform::TextSystem& text;
    Layout& layout;

private:
    void begin(View& root);
    void appendChain(View& view, Siblings& siblings, Pending& pending, Surroundings around);
    std::int32_t link(const LayoutRule& rule, View& view, Siblings& siblings, Pending& pending);

    Redeclare redeclareChildren;
    std::vector<Surroundings> keptSurroundings;
    Font metricsFont{0, FontWeight::regular};
    platform::FontMetrics lastMetrics;
};

}  // namespace views
