#include "pathbar/ChildFolders.h"

#include <string>
#include <string_view>
#include <utility>

#include "platform/NameOrder.h"

namespace brindle {

namespace {

using platform::DirectoryEntry;

bool isFolder(const DirectoryEntry& entry) {
    return entry.isDirectory.value_or(false) && !entry.isPackage.value_or(false);
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
    std::vector<std::string_view> names;
    names.reserve(folders->size());
    for (const DirectoryEntry& folder : *folders) names.push_back(folder.name);
    for (const std::size_t index : platform::orderOfNames(names, platform.collation)) {
        std::string& name = (*folders)[index].name;
        std::string path = joined(prefix, name);
        items.push_back({joined(idPrefix, name), std::move(name), std::move(path), false});
    }
    return items;
}

}  // namespace brindle
