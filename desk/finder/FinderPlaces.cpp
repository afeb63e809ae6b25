#include "desk/finder/FinderPlaces.h"

#include <algorithm>

#include "platform/FileURL.h"

namespace desk {

std::vector<FinderPlace> finderPlaces(const Disk& disk) {
    const std::string& home = disk.home();
    std::vector<FinderPlace> places{
        {"Recents", "clock", std::nullopt},
        {"Applications", "square.grid.2x2", "/Applications"},
        {"Desktop", "desktopcomputer", home + "/Desktop"},
        {"Documents", "doc", home + "/Documents"},
        {"Downloads", "arrow.down.circle", home + "/Downloads"},
        {std::string(platform::lastPathComponent(home)), "house", home},
        {"Macintosh HD", "internaldrive", "/", true},
    };
    // The startup volume stands there as a link, which isn't listed as a folder.
    const auto mounted = disk.list("/Volumes").value_or(std::vector<DiskEntry>{});
    const auto first = static_cast<std::ptrdiff_t>(places.size());
    for (const DiskEntry& entry : mounted)
        if (entry.isDirectory && !entry.isHidden)
            places.push_back({entry.name, "internaldrive", "/Volumes/" + entry.name, true});
    std::sort(places.begin() + first, places.end(),
              [](const FinderPlace& a, const FinderPlace& b) { return a.name < b.name; });
    return places;
}

}  // namespace desk
