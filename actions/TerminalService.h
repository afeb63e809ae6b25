// Opens a folder in Terminal. The bar's root view uses it; whether Terminal is there, or starts, isn't looked at.
#pragma once

#include <string>

#include "platform/Platform.h"

namespace brindle {

class TerminalService {
public:
    explicit TerminalService(platform::Platform& thePlatform) : platform(thePlatform) {}

    // Nothing happens for an empty path, which a window without a known folder has.
    void open(const std::string& path);

private:
    platform::Platform& platform;
};

}  // namespace brindle
