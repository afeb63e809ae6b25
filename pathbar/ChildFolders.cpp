#include "pathbar/ChildFolders.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace brindle {

namespace {

using platform::DirectoryEntry;
using Folders = std::vector<DirectoryEntry>;

// Above this, making a key of each name costs less than the collator's own comparisons.
constexpr std::size_t mostComparedDirectly = 300;

bool isFolder(const DirectoryEntry& entry) {
    return entry.isDirectory.value_or(false) && !entry.isPackage.value_or(false);
}

std::size_t commonLength(std::string_view a, std::string_view b) {
    const auto end = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    return static_cast<std::size_t>(end - a.begin());
}

// Eight bytes as a number that orders as they do.
std::uint64_t headOf(std::string_view key) {
    std::uint64_t head = 0;
    for (std::size_t index = 0; index < sizeof head; ++index)
        head = head << 8 | (index < key.size() ? static_cast<unsigned char>(key[index]) : 0U);
    return head;
}

// Names in one folder tend to begin alike, so the first bytes in which keys can differ decide most comparisons.
void sortByKeys(Folders& folders, platform::Collation& collation) {
    struct Entry {
        std::uint64_t head;
        std::size_t index;
    };
    std::vector<std::string> keys;
    keys.reserve(folders.size());
    for (const DirectoryEntry& folder : folders) keys.push_back(collation.localizedStandardKey(folder.name));
    std::size_t common = keys.front().size();
    for (const std::string& key : keys) common = commonLength(std::string_view(keys.front()).substr(0, common), key);

    std::vector<Entry> order;
    order.reserve(keys.size());
    for (const std::string& key : keys) order.push_back({headOf(std::string_view(key).substr(common)), order.size()});
    std::sort(order.begin(), order.end(), [&](const Entry& a, const Entry& b) {
        if (a.head != b.head) return a.head < b.head;
        const int compared = keys[a.index].compare(keys[b.index]);
        return compared != 0 ? compared < 0 : a.index < b.index;
    });
    Folders sorted;
    sorted.reserve(folders.size());
    for (const Entry& entry : order) sorted.push_back(std::move(folders[entry.index]));
    folders = std::move(sorted);
}

void sortByName(Folders& folders, platform::Collation& collation) {
    if (folders.size() > mostComparedDirectly) {
        sortByKeys(folders, collation);
        return;
    }
    std::stable_sort(folders.begin(), folders.end(), [&](const DirectoryEntry& a, const DirectoryEntry& b) {
        return collation.localizedStandardCompare(a.name, b.name) < 0;
    });
}

}  // namespace

std::vector<BreadcrumbItem> childFolders(platform::Platform& platform, const BreadcrumbItem& of) {
    if (of.path.empty()) return {};
    auto contents = platform.files.contentsOfDirectory(of.path, true);
    if (!contents) return {};
    std::erase_if(*contents, [](const DirectoryEntry& entry) { return !isFolder(entry); });
    sortByName(*contents, platform.collation);

    const std::string prefix = of.path.back() == '/' ? of.path : of.path + '/';
    std::vector<BreadcrumbItem> items;
    items.reserve(contents->size());
    for (DirectoryEntry& folder : *contents) {
        std::string path = prefix + folder.name;
        std::string id = "child-" + path;
        items.push_back({std::move(id), std::move(folder.name), std::move(path), false});
    }
    return items;
}

}  // namespace brindle
