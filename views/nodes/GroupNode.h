// Several views as one: in a stack they are children of the stack, elsewhere and with modifiers of their own they are layered.
#pragma once

#include <functional>

#include "views/LayoutPass.h"
#include "views/nodes/LayersNode.h"

namespace views {

class GroupNode final : public NodeOf<GroupNode> {
public:
    const char* name() const override { return "layers"; }
    void append(LayoutPass& pass, View& view, const Opening& opening) override {
        if (view.children.size() == 1)
            pass.appendInstead(view.children.front(), opening);
        else
            layers.append(pass, view, opening);
    }
    bool appendAmong(LayoutPass& pass, View& view, Siblings& siblings, const Surroundings& around) override {
        if (!view.modifiers.isEmpty()) return false;
        for (View& child : view.children) pass.append(child, siblings, around);
        return true;
    }

private:
    LayersNode layers{Alignment::center};
};

template <typename... Children>
View Group(Children&&... children) {
    View view{GroupNode()};
    view.addChildren(std::forward<Children>(children)...);
    return view;
}

// One view for each item, keyed by `id`, so that what belongs to an item stays with it when others come and go. `build`
// gets the offset and the item.
template <typename Items, typename Id, typename Build>
View ForEach(const Items& items, Id id, Build build) {
    View group{GroupNode()};
    group.children.reserve(items.size());
    std::size_t offset = 0;
    for (const auto& item : items) group.children.emplace_back(build(offset++, item)).key = std::invoke(id, item);
    return group;
}

}  // namespace views
