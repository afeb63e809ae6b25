#include "views/Reconciler.h"

#include <typeinfo>
#include <utility>

namespace views {

namespace {

bool isSamePlace(const View& fresh, const View& previous) {
    const Node& node = *fresh.node;
    const Node& before = *previous.node;
    return typeid(node) == typeid(before) && fresh.key == previous.key;
}

}  // namespace

Reconciler::Reconciler(std::shared_ptr<HostLink> theHost, HostWork& theWork)
    : host(std::move(theHost)), work(theWork) {}

bool Reconciler::update(View& fresh, View* previous) {
    if (previous != nullptr && !isSamePlace(fresh, *previous)) previous = nullptr;
    const bool same =
        previous != nullptr && fresh.modifiers == previous->modifiers && fresh.node->looksLike(*previous->node);
    return fresh.node->update(*this, fresh, previous) && same;
}

bool Reconciler::updateChildren(View& fresh, View* previous) {
    bool same = previous != nullptr && fresh.children.size() == previous->children.size();
    for (std::size_t index = 0; index < fresh.children.size(); ++index) {
        View& child = fresh.children[index];
        View* match = nullptr;
        if (previous != nullptr && index < previous->children.size() && isSamePlace(child, previous->children[index]))
            match = &previous->children[index];
        if (match == nullptr && previous != nullptr && !child.key.empty()) {
            same = false;
            for (View& candidate : previous->children)
                if (isSamePlace(child, candidate)) match = &candidate;
        }
        same = update(child, match) && same;
    }
    return same;
}

void Reconciler::redeclare(View& view, const std::function<void(std::vector<View>& children)>& declare) {
    View before;
    before.children = std::exchange(view.children, {});
    evaluate([&] { declare(view.children); });
    updateChildren(view, before.children.empty() ? nullptr : &before);
}

void Reconciler::takeBehaviour(View& kept, View& fresh) {
    kept.node->takeBehaviour(*fresh.node);
    for (std::size_t index = 0; index < kept.children.size(); ++index)
        takeBehaviour(kept.children[index], fresh.children[index]);
}

}  // namespace views
