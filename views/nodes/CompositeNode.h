// A view of a type with a body(): its child is what the body answered last.
// It has no look and no frame of its own.
#pragma once

#include <memory>
#include <utility>

#include "views/Context.h"
#include "views/View.h"

namespace views {

class CompositeNode final : public NodeOf<CompositeNode> {
public:
    explicit CompositeNode(std::shared_ptr<Composite> theView) : view(std::move(theView)) {}

    const char* name() const override { return "composite"; }
    bool update(Reconciler& reconciler, View& fresh, View* previous) override;
    void takeBehaviour(Node& fresh) override;
    void append(LayoutPass& pass, View& itself, const Opening& opening) override;

private:
    std::shared_ptr<Composite> view;
    std::shared_ptr<Instance> instance;
};

template <DeclaresBody T>
View CompositeOf<T>::body() const {
    return view.body();
}

template <DeclaresBody T>
View::View(T view) : View(CompositeNode(std::make_shared<CompositeOf<T>>(std::move(view)))) {}

}  // namespace views
