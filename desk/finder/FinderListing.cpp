#include "desk/finder/FinderListing.h"

#include <unicode/unistr.h>

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/FileURL.h"
#include "platform/NameOrder.h"

namespace desk {

namespace {

icu::UnicodeString foldedCase(std::string_view text) {
    return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())}).foldCase();
}

}  // namespace

bool FinderListing::update(const Disk& disk, platform::Collation& collation, const std::optional<std::string>& shown) {
    const auto now = shown ? disk.stamp(*shown) : std::nullopt;
    if (shown == folder && now == stamp) return false;
    folder = shown;
    stamp = now;
    read(disk, collation);
    return true;
}

void FinderListing::read(const Disk& disk, platform::Collation& collation) {
    sorted.clear();
    auto listed = folder ? disk.list(*folder) : std::vector<DiskEntry>{};
    readable = listed.has_value();
    if (!listed) return;
    std::erase_if(*listed, [](const DiskEntry& entry) { return entry.isHidden; });
    std::vector<std::string_view> names;
    names.reserve(listed->size());
    for (const DiskEntry& entry : *listed) names.push_back(entry.name);
    sorted.reserve(listed->size());
    for (const std::size_t index : platform::orderOfNames(names, collation))
        sorted.push_back(std::move((*listed)[index]));
}

std::string FinderListing::pathOf(std::size_t row) const {
    return platform::appendingPathComponent(*folder, sorted[row].name);
}

std::optional<std::size_t> FinderListing::rowOf(const std::string& path) const {
    if (!folder || path.size() < 2 || platform::deletingLastPathComponent(path) != *folder) return std::nullopt;
    const std::string_view name = platform::lastPathComponent(path);
    const auto found =
        std::find_if(sorted.begin(), sorted.end(), [&](const DiskEntry& entry) { return entry.name == name; });
    if (found == sorted.end()) return std::nullopt;
    return static_cast<std::size_t>(found - sorted.begin());
}

std::optional<std::size_t> FinderListing::rowNear(std::string_view typed, platform::Collation& collation) const {
    if (sorted.empty()) return std::nullopt;
    const icu::UnicodeString beginning = foldedCase(typed);
    auto found = std::find_if(sorted.begin(), sorted.end(), [&](const DiskEntry& entry) {
        return foldedCase(entry.name).startsWith(beginning) != 0;
    });
    if (found == sorted.end())
        found = std::partition_point(sorted.begin(), sorted.end(), [&](const DiskEntry& entry) {
            return collation.localizedStandardCompare(entry.name, typed) < 0;
        });
    if (found == sorted.end()) --found;
    return static_cast<std::size_t>(found - sorted.begin());
}

}  // namespace desk
