// How often the hosts of one application evaluated and laid out their trees, by what they show. Reached by
// platform.shared<RenderCounts>().
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace platform {
struct Platform;
}  // namespace platform

namespace views {

enum class HostRole : std::uint8_t { window, bar, popover };

struct RenderCounts {
    struct Counts {
        std::int64_t evaluations = 0;
        std::int64_t layouts = 0;
        std::int64_t drawings = 0;
    };

    explicit RenderCounts(platform::Platform& /*platform*/) {}
    Counts& of(HostRole role) { return counts[static_cast<std::size_t>(role)]; }
    std::int64_t barLayouts() const { return counts[static_cast<std::size_t>(HostRole::bar)].layouts; }

private:
    std::array<Counts, 3> counts{};
};

}  // namespace views
