// A stretch of a text in UTF-16 units, as the platform counts them.
#pragma once

#include <cstddef>

namespace views {

struct NSRange {
    std::size_t location = 0;
    std::size_t length = 0;
    friend bool operator==(const NSRange&, const NSRange&) = default;
};

}  // namespace views
