// Handlers that somebody has registered, each until its token goes: what signals and the parts of a backend keep. It calls none of them itself. A visit sees those that were there
// when it began, in order of registration, and leaves out what has gone meanwhile; a handler may end its own registration, or the registry, while it runs.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "platform/Token.h"

namespace platform {

template <typename Handler>
class Registry {
public:
    Token add(Handler handler) {
        auto slot = std::make_shared<Slot>(Slot{std::move(handler), true});
        auto longer = std::make_shared<List>(**slots);
        longer->push_back(slot);
        *slots = std::move(longer);
        return Token([slot, weak = std::weak_ptr(slots)] {
            slot->active = false;
            if (const auto held = weak.lock()) {
                auto shorter = std::make_shared<List>(**held);
                std::erase(*shorter, slot);
                *held = std::move(shorter);
            }
        });
    }

    template <typename Visit>
    void visit(Visit visitor) const {
        visit(visitor, [] { return false; });
    }
    // `isOver` is asked between two of them: true ends the visit.
    template <typename Visit, typename IsOver>
    void visit(Visit visitor, IsOver isOver) const {
        const auto snapshot = *slots;
        for (const auto& slot : *snapshot) {
            if (!slot->active) continue;
            visitor(slot->handler);
            if (isOver()) return;
        }
    }

    std::size_t size() const { return (*slots)->size(); }

private:
    struct Slot {
        Handler handler;
        bool active;
    };
    using List = std::vector<std::shared_ptr<Slot>>;

    std::shared_ptr<std::shared_ptr<const List>> slots =
        std::make_shared<std::shared_ptr<const List>>(std::make_shared<const List>());
};

}  // namespace platform
