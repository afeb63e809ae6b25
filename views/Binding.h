// A two-way connection to a value that lives elsewhere: in a view's state, in an observed object, or worked out on the
// fly. It owns nothing; what its closures capture has to live as long as the view that holds it.
#pragma once

#include <functional>
#include <utility>

#include "platform/Published.h"

namespace views {

template <typename T>
struct Binding {
    std::function<T()> get;
    std::function<void(T)> set;

    static Binding constant(T value) {
        return {[value] { return value; }, [](T) {}};
    }
    static Binding to(platform::Published<T>& published) {
        return {[&published] { return published.get(); },
                [&published](T value) { published.setIfChanged(std::move(value)); }};
    }
};

}  // namespace views
