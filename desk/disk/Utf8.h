// Whether bytes that come from the host are text at all. The Mac's disk has no other names.
#pragma once

#include <string_view>

namespace desk {

// Well-formed: no overlong forms, no surrogates, nothing cut off.
bool isUtf8(std::string_view bytes);

}  // namespace desk
