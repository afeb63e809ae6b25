// A view that shows nothing. It takes no room; among the children of a stack it isn't there at all.
#pragma once

#include "views/View.h"

namespace views {

class EmptyNode final : public LeafOf<EmptyNode> {
public:
    const char* name() const override { return "empty"; }
    bool appendAmong(LayoutPass& /*pass*/, View& /*view*/, Siblings& /*siblings*/,
                     const Surroundings& /*around*/) override {
        return true;
    }
    CGSize measure(LayoutPass& /*pass*/, std::int32_t /*index*/, const ProposedSize& /*proposal*/) const override {
        return {};
    }
};

inline View EmptyView() {
    return View();
}

}  // namespace views
