// Identifiers in an order fixed by the process identifier, so that a story plays the same each time and two processes never share one.
#pragma once

#include <cstdint>
#include <random>

#include "platform/Uuid.h"

namespace desk {

class UuidPort final : public platform::UUIDSource {
public:
    explicit UuidPort(std::int32_t processIdentifier) : generator(static_cast<std::uint64_t>(processIdentifier)) {}

    platform::UUID makeUUID() override {
        const std::uint64_t high = generator();
        return {{high, generator()}};
    }

private:
    std::mt19937_64 generator;
};

}  // namespace desk
