// What a folder window of Finder shows at one moment, as plain words: read from the disk, compared to tell whether the window looks different, and drawn by
// FinderWindowDrawing. Lists no further than what the window has room for.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/Disk.h"
#include "desk/display/WindowChrome.h"
#include "desk/finder/FinderWindow.h"
#include "platform/Geometry.h"
#include "platform/Time.h"

namespace desk {

enum class ItemIcon { folder, document, application };

struct FinderItem {
    std::string name;
    ItemIcon icon = ItemIcon::document;
    std::string modified;
    std::string size;
    std::string kind;
    bool isSelected = false;
    friend bool operator==(const FinderItem&, const FinderItem&) = default;
};

struct FinderContent {
    std::string title;
    std::string path;  // empty of a virtual location
    std::string home;
    platform::CGSize size;
    WindowLook look = WindowLook::inactive;
    std::vector<FinderItem> items;  // those in sight, in Finder's order
    std::size_t itemCount = 0;
    std::size_t selectedCount = 0;
    bool isReadable = true;
    friend bool operator==(const FinderContent&, const FinderContent&) = default;
};

// How many rows a window of that height shows.
std::size_t rowsInSight(double windowHeight);

class FinderContentReader {
public:
    FinderContentReader();
    ~FinderContentReader();
    FinderContent read(const Disk& disk, const FinderWindow& window, platform::CGSize size, WindowLook look,
                       platform::Date now) const;

private:
    class NameOrder;
    std::vector<DiskEntry> inOrder(std::vector<DiskEntry> entries, std::size_t count) const;

    std::unique_ptr<NameOrder> order;
};

// One item by itself, for an info panel.
FinderItem finderItem(const Disk& disk, const std::string& path, platform::Date now);

}  // namespace desk
