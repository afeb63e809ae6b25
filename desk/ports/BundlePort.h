// The bundle that one application was launched from, fixed at its launch.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/Bundle.h"

namespace desk {

class BundlePort final : public platform::NSBundle {
public:
    BundlePort(std::optional<std::string> theIdentifier, std::string thePath)
        : identifier(std::move(theIdentifier)), path(std::move(thePath)) {}

    std::optional<std::string> bundleIdentifier() override { return identifier; }
    std::string bundlePath() override { return path; }

private:
    std::optional<std::string> identifier;
    std::string path;
};

}  // namespace desk
