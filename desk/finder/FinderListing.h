// The entries of the folder that a window shows, in Finder's order. They are read and sorted once and anew only after the folder has changed, for which one look at the folder is
// enough; whoever draws or selects asks for that look first. Sizes and dates aren't part of it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/disk/Disk.h"
#include "platform/Collation.h"

namespace desk {

class FinderListing {
public:
    // A virtual location, which has no folder, has no entries. Answers whether they were read anew.
    bool update(const Disk& disk, platform::Collation& collation, const std::optional<std::string>& shown);

    const std::vector<DiskEntry>& entries() const { return sorted; }
    std::size_t count() const { return sorted.size(); }
    bool isReadable() const { return readable; }
    std::string pathOf(std::size_t row) const;
    std::optional<std::size_t> rowOf(const std::string& path) const;
    // The first entry whose name begins so, whatever the case of its letters; else the first that sorts behind it, or the last one.
    std::optional<std::size_t> rowNear(std::string_view typed, platform::Collation& collation) const;

private:
    void read(const Disk& disk, platform::Collation& collation);

    std::optional<std::string> folder;
    std::optional<Disk::Stamp> stamp;  // when it was read
    std::vector<DiskEntry> sorted;
    bool readable = true;
};

}  // namespace desk
