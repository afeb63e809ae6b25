// The styles of the plate behind every bar. What each looks like is PathBarBackground's business; which one is chosen,
// PathBarDesignManager's.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace brindle {

enum class PathBarDesign : std::uint8_t { standard, finderSimple, searchField, minimalLine, graphite };

// In the order in which they are offered, the default first.
inline constexpr std::array<PathBarDesign, 5> allPathBarDesigns{PathBarDesign::finderSimple, PathBarDesign::standard,
                                                                PathBarDesign::searchField, PathBarDesign::minimalLine,
                                                                PathBarDesign::graphite};

// The text it is stored as.
std::string_view rawValue(PathBarDesign design);
// Empty for a text that isn't the raw value of any style; case counts.
std::optional<PathBarDesign> pathBarDesign(std::string_view rawValue);
// What the user reads of it.
std::string_view title(PathBarDesign design);
std::string_view description(PathBarDesign design);

}  // namespace brindle
