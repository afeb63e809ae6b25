// Weak holding for callbacks that are handed out inside constructors, where weak_from_this() is still empty. A class keeps one
// Lifetime as its last member and wraps what it hands out in guard(): the callback does nothing once the object is gone.
// It doesn't keep anything alive and isn't for use across threads.
#pragma once

#include <memory>
#include <type_traits>
#include <utility>

namespace platform {

class Lifetime {
public:
    Lifetime() = default;
    // A copy or a moved-to object is another object with a life of its own.
    Lifetime(const Lifetime&) {}
    Lifetime& operator=(const Lifetime&) { return *this; }

    // The answer of a guarded callback whose object is gone is a value-initialised result.
    template <typename Function>
    auto guard(Function function) const {
        return [alive = std::weak_ptr<void>(mark), function = std::move(function)](auto&&... arguments) mutable {
            using Result = std::invoke_result_t<Function&, decltype(arguments)...>;
            const bool gone = alive.expired();
            if constexpr (std::is_void_v<Result>) {
                if (!gone) function(std::forward<decltype(arguments)>(arguments)...);
            } else {
                if (gone) return Result{};
                return function(std::forward<decltype(arguments)>(arguments)...);
            }
        };
    }

private:
    std::shared_ptr<void> mark = std::make_shared<char>();
};

}  // namespace platform
