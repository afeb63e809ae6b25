// The modifiers of one view, from the inside out. It has room for as many as most views have, without an allocation; a view with more wraps itself.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>

#include "views/Modifier.h"

namespace views {

class ModifierList {
public:
    static constexpr std::size_t capacity = 4;

    ModifierList() = default;
    ModifierList(const ModifierList& other) noexcept { assign(other); }
    ModifierList& operator=(const ModifierList& other) noexcept {
        assign(other);
        return *this;
    }

    bool isFull() const { return count == capacity; }
    bool isEmpty() const { return count == 0; }
    std::size_t size() const { return count; }
    void append(const Modifier& modifier) {
        std::memcpy(storage.data() + count * sizeof(Modifier), static_cast<const void*>(&modifier), sizeof(Modifier));
        count += 1;
    }
    const Modifier* begin() const { return reinterpret_cast<const Modifier*>(storage.data()); }
    const Modifier* end() const { return begin() + count; }
    const Modifier& operator[](std::size_t index) const { return begin()[index]; }

    friend bool operator==(const ModifierList& a, const ModifierList& b);

private:
    void assign(const ModifierList& other) noexcept {
        count = other.count;
        std::memcpy(storage.data(), other.storage.data(), count * sizeof(Modifier));
    }

    std::size_t count = 0;
    alignas(Modifier) std::array<std::byte, capacity * sizeof(Modifier)> storage;
};

}  // namespace views
