// A view with an action for when a value, declared beside it, has become another one: onChange(). The host runs it after the evaluation that finds out, not for the first value.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "views/Reconciler.h"
#include "views/View.h"

namespace views {

template <typename Value>
class ChangeNode final : public NodeOf<ChangeNode<Value>> {
    using Base = NodeOf<ChangeNode<Value>>;

public:
    ChangeNode(Value value, std::function<void()> action)
        : declared(std::make_unique<Declared>(std::move(value), std::move(action))) {}

    const char* name() const override { return "onChange"; }
    bool update(Reconciler& reconciler, View& fresh, View* previous) override {
        const bool isOther = previous != nullptr && previous->as<ChangeNode>().declared->first != declared->first;
        if (isOther) reconciler.work.changes.push_back(declared->second);
        return Node::update(reconciler, fresh, previous);
    }
    void takeBehaviour(Node& fresh) override { declared = std::move(Base::same(fresh).declared); }

private:
    using Declared = std::pair<Value, std::function<void()>>;
    std::unique_ptr<Declared> declared;
};

template <typename Value>
View&& View::onChange(Value of, std::function<void()> action) && {
    return wrap(ChangeNode<Value>(std::move(of), std::move(action)));
}

}  // namespace views
