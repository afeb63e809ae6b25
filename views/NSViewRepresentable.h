// How an NSView stands in the declarative tree: a type with makeCoordinator(), makeNSView(context) and updateNSView(view, context) is a view like any other. The
// first two are called when its place in the tree appears, the last one then and at every evaluation after it; view and coordinator go when the place goes.
//
//     struct Search {
//         using NSViewType = NSTextField;
//         struct Coordinator { ... };
//         std::shared_ptr<Coordinator> makeCoordinator() const;
//         std::shared_ptr<NSTextField> makeNSView(const views::RepresentableContext<Coordinator>& context) const;
//         void updateNSView(NSTextField& view, const views::RepresentableContext<Coordinator>& context) const;
//     };
#pragma once

#include <memory>
#include <typeinfo>
#include <utility>

#include "views/NSView.h"

namespace views {

template <typename Coordinator>
struct RepresentableContext {
    std::shared_ptr<Coordinator> coordinator;
};

template <typename T>
concept RepresentsNSView = requires(const T& view) {
    typename T::NSViewType;
    view.makeCoordinator();
};

// What the host keeps for the place.
struct RepresentedView {
    std::shared_ptr<void> coordinator;
    std::shared_ptr<NSView> view;
};

class Representable {
public:
    virtual ~Representable() = default;
    virtual const std::type_info& type() const = 0;
    virtual RepresentedView make() const = 0;
    virtual void update(RepresentedView& made) const = 0;
};

template <RepresentsNSView T>
class RepresentableOf final : public Representable {
public:
    explicit RepresentableOf(T theView) : view(std::move(theView)) {}
    const std::type_info& type() const override { return typeid(T); }
    RepresentedView make() const override {
        Context context{view.makeCoordinator()};
        return {context.coordinator, view.makeNSView(context)};
    }
    void update(RepresentedView& made) const override {
        const Context context{std::static_pointer_cast<typename T::Coordinator>(made.coordinator)};
        view.updateNSView(static_cast<typename T::NSViewType&>(*made.view), context);
    }

private:
    using Context = RepresentableContext<typename T::Coordinator>;
    T view;
};

}  // namespace views
