#include "pathbar/ChildFolders.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>

namespace brindle {

namespace {

using platform::DirectoryEntry;
using Folders = std::vector<DirectoryEntry>;
using Order = std::vector<std::size_t>;  // indices into the folders

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

// The keys of all folders, one after the other in one text.
class SortKeys {
public:
    SortKeys(const Folders& folders, platform::Collation& collation) {
        bytes.reserve(folders.size() * 64);
        ends.reserve(folders.size());
        for (const DirectoryEntry& folder : folders) {
            collation.appendLocalizedStandardKey(folder.name, bytes);
            ends.push_back(bytes.size());
        }
    }

    std::size_t size() const { return ends.size(); }
    std::string_view operator[](std::size_t index) const {
        const std::size_t begin = index == 0 ? 0 : ends[index - 1];
        return std::string_view(bytes).substr(begin, ends[index] - begin);
    }

private:
    std::string bytes;
    std::vector<std::size_t> ends;
};

// Names in one folder tend to begin alike, so the first bytes in which keys can differ decide most comparisons.
Order orderByKeys(const SortKeys& keys) {
    struct Entry {
        std::uint64_t head;
        std::size_t index;
    };
    std::string_view common = keys[0];
    for (std::size_t index = 1; index < keys.size(); ++index)
        common = common.substr(0, commonLength(common, keys[index]));

    std::vector<Entry> entries;
    entries.reserve(keys.size());
    for (std::size_t index = 0; index < keys.size(); ++index)
        entries.push_back({headOf(keys[index].substr(common.size())), index});
    std::sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
        if (a.head != b.head) return a.head < b.head;
        const int compared = keys[a.index].compare(keys[b.index]);
        return compared != 0 ? compared < 0 : a.index < b.index;
    });

    Order order;
    order.reserve(entries.size());
    for (const Entry& entry : entries) order.push_back(entry.index);
    return order;
}

Order orderByName(const Folders& folders, platform::Collation& collation) {
    if (folders.size() > mostComparedDirectly) return orderByKeys(SortKeys(folders, collation));
    Order order(folders.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return collation.localizedStandardCompare(folders[a].name, folders[b].name) < 0;
    });
    return order;
}

// In one allocation.
std::string joined(std::string_view prefix, std::string_view name) {
    std::string whole;
    whole.reserve(prefix.size() + name.size());
    whole += prefix;
    whole += name;
    return whole;
}

}  // namespace

std::vector<BreadcrumbItem> childFolders(platform::Platform& platform, const BreadcrumbItem& of) {
    if (of.path.empty()) return {};
    auto folders = platform.files.contentsOfDirectory(of.path, true);
    if (!folders) return {};
    std::erase_if(*folders, [](const DirectoryEntry& entry) { return !isFolder(entry); });

    const std::string prefix = of.path.back() == '/' ? of.path : of.path + '/';
    const std::string idPrefix = "child-" + prefix;
    std::vector<BreadcrumbItem> items;
    items.reserve(folders->size());
    for (const std::size_t index : orderByName(*folders, platform.collation)) {
        std::string& name = (*folders)[index].name;
        std::string path = joined(prefix, name);
        items.push_back({joined(idPrefix, name), std::move(name), std::move(path), false});
    }
    return items;
}

}  // namespace brindle
