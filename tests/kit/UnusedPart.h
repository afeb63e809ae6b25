// Stands for every part of a platform that the code under test must not call: a call ends the test program.
#pragma once

#include <array>
#include <cstddef>

namespace kit {

class UnusedPart {
public:
    template <typename Interface>
    operator Interface&() {
        return *reinterpret_cast<Interface*>(nothing.data());
    }

private:
    alignas(std::max_align_t) std::array<std::byte, 64> nothing{};
};

}  // namespace kit
