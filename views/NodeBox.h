// Room for one node of any kind inside its view, so that a view costs no allocation. It is never empty; a node that was moved away may still be destroyed or replaced.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <new>
#include <type_traits>
#include <utility>

#include "views/Node.h"

namespace views {

template <typename T>
concept IsNode = std::derived_from<T, Node>;

class NodeBox {
public:
    static constexpr std::size_t capacity = 56;

    template <IsNode T>
    explicit NodeBox(T node) {
        static_assert(sizeof(T) <= capacity);
        static_assert(alignof(T) <= alignof(void*));
        static_assert(std::is_nothrow_move_constructible_v<T>);
        ::new (storage.data()) T(std::move(node));
    }
    NodeBox(NodeBox&& other) noexcept { other->moveTo(storage.data()); }
    NodeBox& operator=(NodeBox&& other) noexcept {
        if (this == &other) return *this;
        (**this).~Node();
        other->moveTo(storage.data());
        return *this;
    }
    NodeBox(const NodeBox&) = delete;
    NodeBox& operator=(const NodeBox&) = delete;
    ~NodeBox() { (**this).~Node(); }

    Node& operator*() { return *std::launder(reinterpret_cast<Node*>(storage.data())); }
    const Node& operator*() const { return *std::launder(reinterpret_cast<const Node*>(storage.data())); }
    Node* operator->() { return &**this; }
    const Node* operator->() const { return &**this; }

private:
    alignas(void*) std::array<std::byte, capacity> storage;
};

}  // namespace views
