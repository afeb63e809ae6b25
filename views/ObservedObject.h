// An object that a view reads: any change of it has the view evaluated again, once, at the end of the turn. The object
// outlives the view.
#pragma once

#include <memory>

#include "platform/Published.h"
#include "views/Context.h"

namespace views {

template <typename T>
class ObservedObject {
public:
    explicit ObservedObject(T& theObject) : object(&theObject) {}

    T& operator*() const { return *object; }
    T* operator->() const { return object; }

    void attach(Context& context) {
        const auto slot = context.nextSlot<Subscription>([] { return std::make_shared<Subscription>(); });
        if (slot->object == object) return;
        slot->object = object;
        slot->token = object->observe([host = std::weak_ptr<HostLink>(context.host)] {
            if (const auto held = host.lock()) held->markDirty();
        });
    }

private:
    struct Subscription final : PropertySlot {
        const T* object = nullptr;
        platform::Token token;
    };

    T* object;
};

}  // namespace views
