// Random choices from a seed: the same on every machine and in every build, which the standard library's distributions don't promise.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace play {

class Random {
public:
    explicit Random(std::uint64_t seed) : state(seed) {}

    std::uint64_t next() {
        state += 0x9E3779B97F4A7C15ULL;
        std::uint64_t mixed = state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
        return mixed ^ (mixed >> 31);
    }

    // The bound is above 0.
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(next() % bound); }
    // Both ends included.
    int between(int least, int most) {
        return least + static_cast<int>(below(static_cast<std::size_t>(most - least) + 1));
    }
    bool oneIn(std::size_t chances) { return below(chances) == 0; }
    // From 0 up to, but without, 1.
    double fraction() { return static_cast<double>(next() >> 11) * 0x1p-53; }

    template <typename Value, std::size_t Size>
    const Value& pick(const Value (&values)[Size]) {
        return values[below(Size)];
    }
    template <typename Value>
    const Value& pick(const std::vector<Value>& values) {
        return values[below(values.size())];
    }

private:
    std::uint64_t state;
};

}  // namespace play
