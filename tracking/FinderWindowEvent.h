// One Accessibility notification from Finder with what could be read from its element at that moment. The event monitor makes it for the
// observer; the element itself isn't kept, since it may be gone already.
#pragma once

#include <optional>
#include <string>

#include "platform/Geometry.h"

namespace brindle {

struct FinderWindowEvent {
    std::string notification;
    std::optional<platform::CGRect> topLeftFrame;  // empty unless both position and size could be read
    std::optional<std::string> title;
    bool isMain = false;
    std::optional<bool> isFullScreen;  // empty says nothing, which isn't the same as no

    friend bool operator==(const FinderWindowEvent&, const FinderWindowEvent&) = default;
};

}  // namespace brindle
