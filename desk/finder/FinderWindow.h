// What Finder knows of one of its windows beyond the window server's side of it: the folder shown, the selection, full screen.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "desk/disk/Disk.h"
#include "platform/Geometry.h"

namespace desk {

enum class FinderWindowKind { folder, infoPanel };

struct FinderWindow {
    std::int64_t number = 0;
    FinderWindowKind kind = FinderWindowKind::folder;
    std::optional<std::string>
        target;        // without a trailing slash, "/" of the root; empty of a virtual location such as Recents
    std::string name;  // the title
    std::vector<std::string> selection;  // paths
    // While the list of the folder stays as it was then, nothing that is selected in it has vanished.
    std::optional<Disk::Stamp> selectionSeenAt;
    bool minimized = false;
    bool fullScreen = false;
    platform::CGRect frameBeforeFullScreen;
    int spaceBeforeFullScreen = 1;
    std::string subject;  // of an info panel: the path of the item it tells about
};

// The title of a window on that folder.
std::string nameOfFolder(const std::string& path);

}  // namespace desk
