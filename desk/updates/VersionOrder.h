// The order of versions: part by part, numbers as numbers. A part that is missing counts as 0, and letters come before numbers, so that 2.0b1 comes before 2.0, and that is 2.
#pragma once

#include <compare>
#include <string_view>

namespace desk {

std::strong_ordering compareVersions(std::string_view left, std::string_view right);

}  // namespace desk
