// Puts text on the general pasteboard in place of all that was there. The bar's root view uses it; it doesn't look
// whether the write succeeded.
#pragma once

#include <string>

#include "platform/Platform.h"

namespace brindle {

class ClipboardService {
public:
    explicit ClipboardService(platform::Platform& thePlatform) : platform(thePlatform) {}

    void copy(const std::string& text);

private:
    platform::Platform& platform;
};

}  // namespace brindle
