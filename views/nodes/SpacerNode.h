// Room that takes whatever the others leave along the stack it is in, and none across it.
// It shows nothing.
#pragma once

#include "views/View.h"

namespace views {

class SpacerNode final : public LeafOf<SpacerNode> {
public:
    explicit SpacerNode(double theMinLength) : minLength(theMinLength) {}

    const char* name() const override { return "spacer"; }
    bool looksLike(const Node& other) const override { return minLength == same(other).minLength; }
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;

private:
    double minLength;
};

inline View Spacer(double minLength = 8) {
    return View(SpacerNode(minLength));
}

}  // namespace views
