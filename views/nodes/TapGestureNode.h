// A view that acts on a click anywhere in its frame: onTapGesture().
// To assistive tools it is no button.
#pragma once

#include <functional>
#include <utility>

#include "views/HostingView.h"
#include "views/View.h"

namespace views {

class TapGestureNode final : public NodeOf<TapGestureNode> {
public:
    explicit TapGestureNode(std::function<void()> theAction) : action(std::move(theAction)) {}

    const char* name() const override { return "tapGesture"; }
    void takeBehaviour(Node& fresh) override { action = std::move(same(fresh).action); }
    bool reacts() const override { return true; }
    void clicked(HostingView& host) const override { host.run(action); }

private:
    std::function<void()> action;
};

}  // namespace views
