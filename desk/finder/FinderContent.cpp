#include "desk/finder/FinderContent.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "desk/finder/FinderBrowser.h"
#include "desk/finder/FinderWords.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

FinderItem describe(const Disk& disk, const std::string& path, const DiskEntry& entry, platform::Date now) {
    FinderItem item;
    item.name = entry.name;
    item.icon = entry.isPackage ? ItemIcon::application : entry.isDirectory ? ItemIcon::folder : ItemIcon::document;
    item.kind = entry.isPackage ? "Application" : entry.isDirectory ? "Folder" : documentKindText(entry.name);
    item.size = "--";
    const std::optional<Disk::Attributes> attributes = disk.attributes(path);
    if (!attributes) return item;
    // The sample's files are as old as the host made them, which may be after the machine's own time.
    item.modified = dateText(std::min(attributes->modified, now), now);
    const bool leadsToFolder = !entry.isDirectory && disk.kind(path) == platform::FileKind::directory;
    if (leadsToFolder) {
        item.icon = ItemIcon::folder;
        item.kind = "Alias";
    } else if (!entry.isDirectory) {
        item.size = fileSizeText(attributes->size);
    }
    return item;
}

}  // namespace

FinderContent finderOutline(FinderBrowser& browser, const FinderWindow& window) {
    const FinderListing& list = browser.listing(window);
    FinderContent content;
    content.title = window.name;
    content.path = window.target.value_or("");
    content.size = browser.sizeOf(window);
    content.places = browser.places();
    content.itemCount = list.count();
    content.selectedCount = window.selection.size();
    content.scrolled = browser.layout(window).scrolled();
    content.band = browser.band(window);
    content.isReadable = list.isReadable();
    content.canGoBack = browser.canGoBack(window.number);
    content.canGoForward = browser.canGoForward(window.number);
    return content;
}

FinderContent finderContent(FinderBrowser& browser, const Disk& disk, const FinderWindow& window, WindowLook look,
                            platform::Date now) {
    FinderContent content = finderOutline(browser, window);
    content.look = look;
    const FinderListing& list = browser.listing(window);
    const FinderLayout layout = browser.layout(window);
    const std::size_t end = std::min(layout.firstRow() + layout.rowsInSight(), list.count());
    std::unordered_map<std::string, std::size_t> inSight;
    for (std::size_t row = layout.firstRow(); row < end; ++row) {
        const std::string path = list.pathOf(row);
        inSight.emplace(path, content.items.size());
        content.items.push_back(describe(disk, path, list.entries()[row], now));
    }
    for (const std::string& path : window.selection)
        if (const auto found = inSight.find(path); found != inSight.end())
            content.items[found->second].isSelected = true;
    return content;
}

FinderItem finderItem(const Disk& disk, const std::string& path, platform::Date now) {
    DiskEntry entry;
    entry.name = platform::lastPathComponent(path);
    entry.isDirectory = disk.kind(path) == platform::FileKind::directory;
    const std::string_view name = entry.name;
    entry.isPackage = entry.isDirectory && name.size() > 4 && name.substr(name.size() - 4) == ".app";
    return describe(disk, path, entry, now);
}

}  // namespace desk
