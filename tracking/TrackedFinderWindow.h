// Geometry and identity of one Finder window as the platform reported it at one moment. The tracker makes it, the observer merges it with
// what is known of the window's folder; nobody changes one.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Geometry.h"

namespace brindle {

struct TrackedFinderWindow {
    std::string id;  // "finder-" and the window number
    std::int64_t windowNumber = 0;
    std::int64_t zIndex = 0;
    platform::CGRect frame;  // AppKit space
    std::string title;       // empty when the platform gives none
    bool isActive = false;   // in front of Finder's other windows
    bool isFullScreen = false;

    friend bool operator==(const TrackedFinderWindow&, const TrackedFinderWindow&) = default;
};

}  // namespace brindle
