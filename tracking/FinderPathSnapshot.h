// What Finder said about one of its windows in one answer to the window-list script. The path provider makes it; the observer keeps the last
// one of each window.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace brindle {

struct FinderPathSnapshot {
    std::string id;  // "snapshot-" and the window number; windows are matched by the number alone
    std::int64_t windowNumber = 0;
    std::string path;  // empty when Finder couldn't tell
    std::string displayName;
    std::optional<std::string> selectedFilePath;  // means something only if the selection was queried
    bool selectionWasQueried = false;

    friend bool operator==(const FinderPathSnapshot&, const FinderPathSnapshot&) = default;
};

}  // namespace brindle
