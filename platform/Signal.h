// An announcement: what published values, and the parts of a backend, tell their changes with. It keeps no value, and calls its handlers in order of subscription. Main thread
// only.
#pragma once

#include <cstddef>
#include <functional>
#include <utility>

#include "platform/Registry.h"
#include "platform/Token.h"

namespace platform {

template <typename... Arguments>
class Signal {
public:
    using Handler = std::function<void(Arguments...)>;

    Token subscribe(Handler handler) { return handlers.add(std::move(handler)); }

    // `isStale` is asked between two handlers: true ends the delivery.
    template <typename IsStale>
    void deliver(IsStale isStale, Arguments... arguments) const {
        handlers.visit([&](const Handler& handler) { handler(arguments...); }, isStale);
    }
    void operator()(Arguments... arguments) const {
        handlers.visit([&](const Handler& handler) { handler(arguments...); });
    }

    std::size_t subscriberCount() const { return handlers.size(); }

private:
    Registry<Handler> handlers;
};

}  // namespace platform
