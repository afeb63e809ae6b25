// A view with a popover at one of its edges while a binding is true: popover(). The host puts it up.
// Declaring another content doesn't count as another look.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "views/View.h"

namespace views {

struct Popover {
    Binding<bool> isPresented;
    Edge arrowEdge = Edge::bottom;
    std::function<View()> content;
};

class PopoverNode final : public NodeOf<PopoverNode> {
public:
    explicit PopoverNode(Popover popover) : declared(std::make_unique<Popover>(std::move(popover))) {}

    const char* name() const override { return "popover"; }
    void takeBehaviour(Node& fresh) override { declared = std::move(same(fresh).declared); }
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    const Popover* popover() const override { return declared.get(); }

private:
    std::unique_ptr<Popover> declared;
};

}  // namespace views
