// A value that a view keeps for itself between evaluations. It lives in the host, by the view's place in the tree, and goes when that place goes; the field in
// the view is a reference to it. Writing it has the view evaluated again at the end of the turn, if its body reads it.
#pragma once

#include <memory>
#include <utility>

#include "views/Binding.h"
#include "views/Context.h"

namespace views {

template <typename T>
class State {
public:
    explicit State(T initial) : box(std::make_shared<Box>(std::move(initial))) {}

    const T& get() const {
        if (box->host && box->host->isEvaluating) box->isRead = true;
        return box->value;
    }
    void set(T value) const { write(*box, std::move(value)); }

    Binding<T> binding() const {
        return {[held = box] { return State(held).get(); }, [held = box](T value) { write(*held, std::move(value)); }};
    }

    void attach(Context& context) {
        box = context.nextSlot<Box>([this] { return box; });
        box->host = context.host;
    }

private:
    struct Box final : PropertySlot {
        explicit Box(T initial) : value(std::move(initial)) {}
        T value;
        std::shared_ptr<HostLink> host;
        bool isRead = false;
    };

    explicit State(std::shared_ptr<Box> theBox) : box(std::move(theBox)) {}
    static void write(Box& box, T value) {
        box.value = std::move(value);
        if (box.isRead && box.host) box.host->markDirty();
    }

    std::shared_ptr<Box> box;
};

}  // namespace views
