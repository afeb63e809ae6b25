// How the disk's paths lie to one another, as texts: absolute, and without a slash at their end. Nothing is looked up.
#pragma once

#include <string>
#include <string_view>

namespace desk {

std::string joined(std::string_view folder, std::string_view name);

// The names on the way from a folder to a path below it; empty when it doesn't lie below.
std::string_view below(std::string_view folder, std::string_view path);

bool isAtOrBelow(std::string_view folder, std::string_view path);

}  // namespace desk
