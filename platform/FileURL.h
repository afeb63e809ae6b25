// What file URLs and path strings answer about a path without looking at the disk. Paths are UTF-8 and otherwise taken as they are: nothing
// is escaped, normalised or localised.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

// A leading "~" becomes the home folder, as does "~" with that folder's own name, when a slash or nothing follows; anything else stays.
std::string stringByExpandingTildeInPath(std::string_view path, std::string_view homeDirectory);

// The path of the standardized file URL: absolute against the directory when it is relative, without "." and "..", doubled and trailing slashes.
std::string standardizedPath(std::string_view path, std::string_view currentDirectory);

// "/" first, then one name each; the path is taken as absolute. A trailing slash adds nothing.
std::vector<std::string> pathComponents(std::string_view path);

// "/" of the root stays.
std::string_view withoutTrailingSlashes(std::string_view path);

// What stands under that name in the folder.
std::string appendingPathComponent(std::string_view path, std::string_view name);

// Ignores trailing slashes; "/" of the root, empty of an empty path.
std::string_view lastPathComponent(std::string_view path);

// The containing folder's path, without a trailing slash except for the root, which contains itself.
std::string deletingLastPathComponent(std::string_view path);

}  // namespace platform
