// Whether a text is a URL: RFC 3986 to the letter, nothing escaped or mended. It looks at the text alone.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

// Foundation's URL(string:): the text itself, absolute or relative; nothing when it is empty or breaks the rules (a blank, a letter beyond ASCII, a stray "%" do).
std::optional<std::string> URLWithString(std::string_view text);

}  // namespace platform
