// The order in which a folder's names are listed, for few names and for very many. It neither reads names nor moves them.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/Collation.h"

namespace platform {

// Which name comes first, which second, and so on.
std::vector<std::size_t> orderOfNames(const std::vector<std::string_view>& names, Collation& collation);

}  // namespace platform
