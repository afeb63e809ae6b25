#include "desk/applescript/Program.h"

#include <algorithm>

namespace desk::applescript {

std::size_t Program::slot(const std::string& folded, const std::string& written) {
    const auto found = std::find(names.begin(), names.end(), folded);
    if (found != names.end()) {
        return static_cast<std::size_t>(found - names.begin());
    }
    names.push_back(folded);
    writtenNames.push_back(written);
    return names.size() - 1;
}

}  // namespace desk::applescript
