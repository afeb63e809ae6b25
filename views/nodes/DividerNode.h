// A hairline across the stack it is in; in a menu, the line between two groups of entries.
// Its colour is the system's.
#pragma once

#include "views/View.h"

namespace views {

class DividerNode final : public LeafOf<DividerNode> {
public:
    const char* name() const override { return "divider"; }
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void draw(Canvas& canvas, const LayoutItem& item) const override;
    void addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const override;
};

inline View Divider() {
    return View(DividerNode());
}

}  // namespace views
