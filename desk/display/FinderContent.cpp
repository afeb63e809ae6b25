#include "desk/display/FinderContent.h"

#include <unicode/coll.h>
#include <unicode/stringpiece.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string_view>
#include <utility>

#include "desk/display/FinderMetrics.h"
#include "desk/display/FinderWords.h"

namespace desk {

namespace {

std::string childPath(const std::string& folder, const std::string& name) {
    return folder == "/" ? "/" + name : folder + "/" + name;
}

std::string lastComponent(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos || path.size() == 1 ? path : path.substr(slash + 1);
}

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

// Names as Finder orders them: numbers by value, letters without regard to case before with.
class FinderContentReader::NameOrder {
public:
    NameOrder() {
        UErrorCode status = U_ZERO_ERROR;
        collator.reset(icu::Collator::createInstance(icu::Locale::getRoot(), status));
        if (U_FAILURE(status)) collator.reset();
        if (collator != nullptr) collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    }

    bool operator()(const DiskEntry& a, const DiskEntry& b) const {
        if (collator == nullptr) return a.name < b.name;
        UErrorCode status = U_ZERO_ERROR;
        const UCollationResult result = collator->compareUTF8(piece(a.name), piece(b.name), status);
        return result == UCOL_EQUAL ? a.name < b.name : result == UCOL_LESS;
    }

private:
    static icu::StringPiece piece(const std::string& name) {
        return {name.data(), static_cast<std::int32_t>(name.size())};
    }

    std::unique_ptr<icu::Collator> collator;
};

FinderContentReader::FinderContentReader() : order(std::make_unique<NameOrder>()) {}

FinderContentReader::~FinderContentReader() = default;

// Those in sight first; the others follow in any order.
std::vector<DiskEntry> FinderContentReader::inOrder(std::vector<DiskEntry> entries, std::size_t count) const {
    std::erase_if(entries, [](const DiskEntry& entry) { return entry.isHidden; });
    const auto inSight = static_cast<std::ptrdiff_t>(std::min(count, entries.size()));
    std::partial_sort(entries.begin(), entries.begin() + inSight, entries.end(),
                      [this](const DiskEntry& a, const DiskEntry& b) { return (*order)(a, b); });
    return entries;
}

std::size_t rowsInSight(double windowHeight) {
    const double room = windowHeight - windowTitleBarHeight - finderHeaderHeight - finderStatusHeight;
    return room > 0 ? static_cast<std::size_t>(std::ceil(room / finderRowHeight)) : 0;
}

FinderContent FinderContentReader::read(const Disk& disk, const FinderWindow& window, platform::CGSize size,
                                        WindowLook look, platform::Date now) const {
    FinderContent content;
    content.title = window.name;
    content.home = disk.home();
    content.size = size;
    content.look = look;
    content.selectedCount = window.selection.size();
    if (!window.target) return content;
    content.path = *window.target;
    std::optional<std::vector<DiskEntry>> listed = disk.list(content.path);
    content.isReadable = listed.has_value();
    if (!listed) return content;
    const std::vector<DiskEntry> entries = inOrder(std::move(*listed), rowsInSight(size.height));
    content.itemCount = entries.size();
    for (std::size_t i = 0; i < std::min(rowsInSight(size.height), entries.size()); ++i) {
        const std::string path = childPath(content.path, entries[i].name);
        FinderItem item = describe(disk, path, entries[i], now);
        item.isSelected = std::find(window.selection.begin(), window.selection.end(), path) != window.selection.end();
        content.items.push_back(std::move(item));
    }
    return content;
}

FinderItem finderItem(const Disk& disk, const std::string& path, platform::Date now) {
    DiskEntry entry;
    entry.name = lastComponent(path);
    entry.isDirectory = disk.kind(path) == platform::FileKind::directory;
    const std::string_view name = entry.name;
    entry.isPackage = entry.isDirectory && name.size() > 4 && name.substr(name.size() - 4) == ".app";
    return describe(disk, path, entry, now);
}

}  // namespace desk
