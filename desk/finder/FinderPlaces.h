// The places that the sidebar of Finder's windows offers: favourites first, then the volumes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "desk/disk/Disk.h"

namespace desk {

struct FinderPlace {
    std::string name;
    std::string symbol;
    std::optional<std::string> path;  // empty of a virtual location
    bool isVolume = false;
    friend bool operator==(const FinderPlace&, const FinderPlace&) = default;
};

std::vector<FinderPlace> finderPlaces(const Disk& disk);

}  // namespace desk
