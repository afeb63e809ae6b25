// What a folder window of Finder shows at one moment, as plain words: taken from Finder and the disk, compared to tell whether the window looks different, and drawn by
// FinderWindowView. Of the list it holds no more than what is in sight.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "desk/disk/Disk.h"
#include "desk/finder/FinderPlaces.h"
#include "desk/finder/FinderWindow.h"
#include "desk/look/WindowFrameView.h"
#include "platform/Geometry.h"
#include "platform/Time.h"

namespace desk {

class FinderBrowser;

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
    platform::CGSize size;
    WindowLook look = WindowLook::inactive;
    std::vector<FinderPlace> places;
    std::vector<FinderItem> items;  // from the first row in sight on
    std::size_t itemCount = 0;
    std::size_t selectedCount = 0;
    double scrolled = 0;
    std::optional<platform::CGRect> band;  // being dragged open, in the whole list
    bool isReadable = true;
    bool canGoBack = false;
    bool canGoForward = false;
    friend bool operator==(const FinderContent&, const FinderContent&) = default;
};

// Without the items: enough to know where everything lies.
FinderContent finderOutline(FinderBrowser& browser, const FinderWindow& window);
FinderContent finderContent(FinderBrowser& browser, const Disk& disk, const FinderWindow& window, WindowLook look,
                            platform::Date now);

// One item by itself, for an info panel.
FinderItem finderItem(const Disk& disk, const std::string& path, platform::Date now);

}  // namespace desk
