// What Finder said about the selection in its front window. The path provider makes it, the observer writes it into that window's state.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace brindle {

struct FinderSelectionSnapshot {
    std::int64_t windowNumber = 0;
    std::optional<std::string> selectedFilePath;  // empty unless exactly one item is selected

    friend bool operator==(const FinderSelectionSnapshot&, const FinderSelectionSnapshot&) = default;
};

}  // namespace brindle
