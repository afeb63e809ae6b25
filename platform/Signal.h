// A list of handlers that are called in order: what published values, and the parts of a backend, announce their changes with. Main thread only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/Token.h"

namespace platform {

// Runs handlers in order of subscription, over the list as it was when the call began; a handler cancelled meanwhile is left out.
template <typename... Arguments>
class Signal {
public:
    using Handler = std::function<void(Arguments...)>;

    Token subscribe(Handler handler) {
        // Here too: what is rarely delivered would otherwise keep the entries of everything that ever came and went.
        sweep();
        auto entry = std::make_shared<Entry>(Entry{std::move(handler), true});
        auto changed = std::make_shared<List>(*entries);
        changed->push_back(entry);
        entries = std::move(changed);
        count->value += 1;
        return Token([entry, weak = std::weak_ptr<Count>(count)] {
            entry->active = false;
            if (const auto held = weak.lock()) {
                held->value -= 1;
                held->stale = true;
            }
        });
    }

    // `isStale` is asked between two handlers: true ends the delivery.
    template <typename IsStale>
    void deliver(IsStale isStale, Arguments... arguments) {
        sweep();
        const std::shared_ptr<List> snapshot = entries;
        for (const auto& entry : *snapshot) {
            if (!entry->active) continue;
            const auto keepAlive = entry;
            keepAlive->handler(arguments...);
            if (isStale()) return;
        }
    }

    void operator()(Arguments... arguments) {
        deliver([] { return false; }, arguments...);
    }

    std::size_t subscriberCount() const { return static_cast<std::size_t>(count->value); }

private:
    struct Entry {
        Handler handler;
        bool active;
    };
    struct Count {
        std::int64_t value = 0;
        bool stale = false;
    };
    using List = std::vector<std::shared_ptr<Entry>>;

    void sweep() {
        if (!count->stale) return;
        count->stale = false;
        auto kept = std::make_shared<List>();
        for (const auto& entry : *entries)
            if (entry->active) kept->push_back(entry);
        entries = std::move(kept);
    }

    std::shared_ptr<List> entries = std::make_shared<List>();
    std::shared_ptr<Count> count = std::make_shared<Count>();
};

}  // namespace platform
