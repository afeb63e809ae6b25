// A value that a view keeps for itself between evaluations. It lives in the host, by the view's place in the tree, and
// goes when that place goes; the field in the view is a reference to it. Writing it has the view evaluated again at the
// end of the turn, if its body reads it.
#pragma once

#include <memory>
#include <utility>

#include "views/Binding.h"
#include "views/Context.h"

namespace views {

template <typename T>
class State {
public:
    explicit State(T theInitial) : initial(std::move(theInitial)) {}

    // The initial value before the view is part of a host.
    const T& get() const {
        if (!box) return initial;
        if (box->host->isEvaluating) box->isRead = true;
        return box->value;
    }
    void set(T value) const {
        if (!box) return;
        box->value = std::move(value);
        if (box->isRead) box->host->markDirty();
    }

    // It goes on working when the view is declared anew.
    Binding<T> binding() const {
        return {[state = *this] { return state.get(); }, [state = *this](T value) { state.set(std::move(value)); }};
    }

    void attach(Context& context) {
        box = context.nextSlot<Box>([&] { return std::make_shared<Box>(initial, context.host); });
    }

private:
    struct Box final : PropertySlot {
        Box(T theValue, std::shared_ptr<HostLink> theHost) : value(std::move(theValue)), host(std::move(theHost)) {}
        T value;
        const std::shared_ptr<HostLink> host;
        bool isRead = false;
    };

    T initial;
    std::shared_ptr<Box> box;
};

}  // namespace views
