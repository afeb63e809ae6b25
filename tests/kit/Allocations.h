// Counts what a benchmark program allocates. Included by one source of a program, since it replaces the allocation operators.
#pragma once

#include <malloc.h>

#include <cstdint>
#include <cstdlib>
#include <new>

namespace kit {

inline std::int64_t allocationsMade = 0;
inline std::int64_t bytesAlive = 0;

inline void* allocate(std::size_t size) {
    void* memory = std::malloc(size);
    if (memory == nullptr) throw std::bad_alloc();
    allocationsMade += 1;
    bytesAlive += static_cast<std::int64_t>(malloc_usable_size(memory));
    return memory;
}

inline void release(void* memory) noexcept {
    if (memory != nullptr) bytesAlive -= static_cast<std::int64_t>(malloc_usable_size(memory));
    std::free(memory);
}

}  // namespace kit

void* operator new(std::size_t size) {
    return kit::allocate(size);
}
void operator delete(void* memory) noexcept {
    kit::release(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    kit::release(memory);
}
