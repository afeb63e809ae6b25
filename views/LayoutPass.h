// Works out a Layout by the proposal model: a parent proposes a size, the child answers the size it takes, the parent
// places it. One object lays out one tree once. It measures text through the TextSystem and asks for the content of
// geometry readers, and knows nothing of windows or drawing.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/Text.h"
#include "views/Layout.h"

namespace views {

class LayoutPass {
public:
    // Makes sure that the reader's child is its content for this size.
    using ExpandReader = std::function<void(View& reader, CGSize size)>;

    LayoutPass(platform::TextSystem& theText, ExpandReader theExpandReader, Layout& into);

    // The root is offered the whole size, and centred in it.
    void layOut(View& root, CGSize size);
    // What the root takes when it is offered nothing; places nothing.
    CGSize idealSize(View& root);

private:
    // What goes down the tree while items are made.
    struct Surroundings {
        Font font;
        Color color;
        double opacity = 1;
        TextStyle textStyle;
        bool isVertical = true;
    };
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
    struct Claim {
        std::int32_t child;
        double priority;
        double minimum;
        double flexibility;
    };
    class Axis;

    void begin(View& root);
    void append(View& view, Siblings& siblings, const Surroundings& around);
    void appendChain(View& view, Siblings& siblings, Pending& pending, Surroundings around);
    void appendCore(View& view, Siblings& siblings, Pending& pending, const Surroundings& around);
    void appendContainer(View& view, ItemKind kind, Siblings& siblings, Pending& pending, Surroundings around);
    void appendWrapped(View& view, ItemKind kind, Siblings& siblings, Pending& pending, const Surroundings& around);
    void appendLeaf(View& view, ItemKind kind, Siblings& siblings, Pending& pending, const Surroundings& around);
    std::int32_t open(ItemKind kind, View& view, Siblings& siblings, Pending& pending,
                      const Modifier* modifier = nullptr);

    CGSize measure(std::int32_t index, const ProposedSize& proposal);
    std::optional<CGSize> measureAtOnce(const LayoutItem& item, const ProposedSize& proposal);
    CGSize measureAnew(std::int32_t index, const ProposedSize& proposal);
    CGSize sizeOfLines(const LayoutItem& item, double width);
    CGSize measureText(const LayoutItem& item, const ProposedSize& proposal);
    CGSize measureLayers(const LayoutItem& item, const ProposedSize& proposal);
    CGSize measureStack(std::int32_t index, const ProposedSize& proposal);
    CGSize measureChild(const LayoutItem& item, const ProposedSize& proposal);
    ProposedSize proposalInside(const LayoutItem& item, const ProposedSize& proposal) const;
    std::int32_t contentOf(const LayoutItem& item) const;

    // Offers every child of the stack its share; what they took is then their answer to `offered`.
    void distribute(std::int32_t index, const ProposedSize& proposal);
    bool offerAmpleRoom(const LayoutItem& stack, const Axis& axis, double available);
    void offerByPriority(const LayoutItem& stack, const Axis& axis, double available);
    double offer(std::int32_t child, const Axis& axis, double length);

    void place(std::int32_t index, const CGRect& frame);
    void placeAligned(std::int32_t child, const CGRect& inside, Alignment alignment, const ProposedSize& offered);
    void placeStack(std::int32_t index, const CGRect& frame);
    void placeReader(std::int32_t index, const CGRect& frame);
    void placeContent(const LayoutItem& item, const CGRect& frame);

    const platform::FontMetrics& metrics(Font font);

    platform::TextSystem& text;
    ExpandReader expandReader;
    Layout& layout;
    std::vector<Claim> claims;
    std::vector<Surroundings>
        readerSurroundings;  // of the readers met so far, in the order of their items' `natural.width`
    Font metricsFont{0, FontWeight::regular};
    platform::FontMetrics lastMetrics;
};

}  // namespace views
