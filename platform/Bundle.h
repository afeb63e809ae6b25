// The running application's own bundle and the processes made from the same one.
#pragma once

#include <optional>
#include <string>

namespace platform {

class NSBundle {
public:
    virtual ~NSBundle() = default;
    virtual std::optional<std::string> bundleIdentifier() = 0;
    virtual std::string bundlePath() = 0;
};

}  // namespace platform
