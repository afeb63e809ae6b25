#include "views/nodes/CompositeNode.h"

#include "views/LayoutPass.h"
#include "views/Reconciler.h"

namespace views {

bool CompositeNode::update(Reconciler& reconciler, View& fresh, View* previous) {
    if (previous != nullptr && previous->as<CompositeNode>().view->type() != view->type()) previous = nullptr;
    if (previous != nullptr)
        instance = std::move(previous->as<CompositeNode>().instance);
    else
        instance = std::make_shared<Instance>();

    Context context(reconciler.host, *instance);
    view->connect(context);
    fresh.children.clear();
    reconciler.evaluate([&] { fresh.children.push_back(view->body()); });
    return reconciler.update(fresh.children.front(), previous == nullptr ? nullptr : &previous->children.front());
}

void CompositeNode::takeBehaviour(Node& fresh) {
    view = std::move(same(fresh).view);
    instance = std::move(same(fresh).instance);
}

void CompositeNode::append(LayoutPass& pass, View& itself, const Opening& opening) {
    View& body = itself.children.front();
    const bool canBeMany = opening.siblings.canBeMany && opening.pending.outermost == LayoutItem::none;
    if (!canBeMany || !body.node->appendAmong(pass, body, opening.siblings, opening.around))
        pass.appendInstead(body, opening);
}

}  // namespace views
