#include "tracking/FinderWindowState.h"

#include <string_view>

#include "platform/FileURL.h"

namespace brindle {

std::string FinderWindowState::folderName() const {
    if (path.empty()) return displayName;
    const std::string_view last = platform::lastPathComponent(path);
    return last.empty() ? path : std::string(last);
}

}  // namespace brindle
