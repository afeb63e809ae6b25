// Random identifiers, of which only their difference has meaning. In virtual time they come from a fixed seed.
#pragma once

#include <array>
#include <cstdint>

namespace platform {

struct UUID {
    std::array<std::uint64_t, 2> bits{};
    friend bool operator==(const UUID&, const UUID&) = default;
};

class UUIDSource {
public:
    virtual ~UUIDSource() = default;
    virtual UUID makeUUID() = 0;
};

}  // namespace platform
