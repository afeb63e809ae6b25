// What one bar shows of one Finder window: the only type of this directory's model that the overlay and the path bar see. The observer makes and
// publishes it. `frame` is the Finder window's own frame in AppKit space, never the bar's. It knows nothing of where its values come from.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Geometry.h"

namespace brindle {

struct FinderWindowState {
    // These three stay as they were made: a window with another number is another window. They aren't const, so that lists of states can be assigned.
    std::string id;
    std::int64_t windowNumber = 0;
    std::int64_t zIndex = 0;  // among Finder's windows, 0 in front

    std::string path;  // of the folder shown, as Finder gave it; may be empty
    std::string displayName;
    std::optional<std::string> selectedFilePath;  // empty when no single selected item is known
    platform::CGRect frame;
    bool isActive = false;  // Finder's front window, whether or not Finder is the frontmost application
    bool isFullScreen = false;

    // The folder's last path component, or the window's name while no path is known.
    std::string folderName() const;

    // Exact in every field: a difference of any size is worth publishing.
    friend bool operator==(const FinderWindowState&, const FinderWindowState&) = default;
};

}  // namespace brindle
