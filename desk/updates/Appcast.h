// An update feed as text, and what it offers. It fetches nothing, and an enclosure is only an address to it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace desk {

struct AppcastItem {
    std::string version;
    std::string displayVersion;  // the version, if the feed has no other for people
    std::string url;
};

// No feed is larger, in bytes.
inline constexpr std::size_t largestFeed = 1 << 20;

// In the feed's order, without items that lack a version or an address, or have an endless one. Nothing of what isn't well-formed, isn't RSS, brings a document type along, or is too large.
std::optional<std::vector<AppcastItem>> readAppcast(std::string_view feed);

// Of several the first; null when none is newer than that version.
const AppcastItem* newestAbove(const std::vector<AppcastItem>& items, std::string_view version);

}  // namespace desk
