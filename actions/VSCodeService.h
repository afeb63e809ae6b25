// Opens a folder in Visual Studio Code, from wherever it is installed. The bar's root view uses it; what becomes of the
// launch isn't looked at.
#pragma once

#include <optional>
#include <string>

#include "platform/Platform.h"

namespace brindle {

class VSCodeService {
public:
    explicit VSCodeService(platform::Platform& thePlatform) : platform(thePlatform) {}

    // Whether the editor was found.
    bool open(const std::string& path);

private:
    // Every user's copy goes before the user's own.
    std::optional<std::string> applicationPath();

    platform::Platform& platform;
};

}  // namespace brindle
