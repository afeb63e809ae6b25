// Paths in the two spellings that a script meets: POSIX paths with slashes, and Finder's own with colons, which begin
// with the name of a disk. Text only; the disk isn't asked.
#pragma once

#include <string>
#include <string_view>

namespace desk::applescript {

// Of "/" the startup disk's name.
std::string_view lastComponent(std::string_view path);

// A colon on disk is a slash in Finder, and the other way round.
std::string finderName(std::string_view diskName);

std::string colonPath(std::string_view posixPath, bool isFolder);

// In single quotes, for a shell.
std::string quotedForShell(std::string_view text);

}  // namespace desk::applescript
