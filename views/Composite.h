// The value of a type with a body(), as the tree keeps it: how a view of one's own becomes a node. Hosts evaluate it.
#pragma once

#include <concepts>
#include <typeinfo>
#include <utility>

namespace views {

class Context;
class View;

template <typename T>
concept DeclaresBody = requires(const T& view) {
    { view.body() } -> std::same_as<View>;
};

class Composite {
public:
    virtual ~Composite() = default;
    virtual const std::type_info& type() const = 0;
    virtual void connect(Context& context) = 0;
    virtual View body() const = 0;
};

template <DeclaresBody T>
class CompositeOf final : public Composite {
public:
    explicit CompositeOf(T theView) : view(std::move(theView)) {}
    const std::type_info& type() const override { return typeid(T); }
    void connect(Context& context) override {
        if constexpr (requires { view.connect(context); }) view.connect(context);
    }
    View body() const override;  // in View.h

private:
    T view;
};

}  // namespace views
