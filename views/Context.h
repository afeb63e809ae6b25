// How the properties of a view (State, ObservedObject, Environment) reach what their host keeps for the view's place in
// the tree. A view with such properties has `void connect(views::Context& context)`, which hands them to
// context.connect() in a fixed order; the host calls it before body().
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace platform {
struct Platform;
}  // namespace platform

namespace views {

// What one property keeps from one evaluation to the next. It goes when the view's place goes.
struct PropertySlot {
    virtual ~PropertySlot() = default;
};

struct Instance {
    std::vector<std::shared_ptr<PropertySlot>> slots;
};

// A host as properties see it; it outlives the host.
struct HostLink {
    platform::Platform& platform;
    std::function<void()> invalidate;  // empty once the host is gone
    bool isEvaluating = false;
    bool readsColorScheme = false;

    void markDirty() const {
        if (invalidate) invalidate();
    }
};

class Context {
public:
    Context(const std::shared_ptr<HostLink>& theHost, Instance& theInstance) : host(theHost), instance(theInstance) {}

    template <typename... Properties>
    void connect(Properties&... properties) {
        (properties.attach(*this), ...);
    }

    // The slot of the property whose turn it is, made on the first evaluation of this place.
    template <typename Slot, typename Make>
    std::shared_ptr<Slot> nextSlot(Make make) {
        if (next == instance.slots.size()) instance.slots.push_back(make());
        return std::static_pointer_cast<Slot>(instance.slots[next++]);
    }

    const std::shared_ptr<HostLink>& host;

private:
    Instance& instance;
    std::size_t next = 0;
};

}  // namespace views
