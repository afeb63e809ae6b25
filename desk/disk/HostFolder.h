// Calls to the host's file system that Disk is made of, each on one host path whose way there has no symbolic links. They know nothing of the Mac's paths.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Time.h"

namespace desk::host {

enum class EntryKind { file, directory, link };

std::optional<EntryKind> kindOf(const std::string& path);
// The same at one stroke, whatever the length of the way; empty also when there is a link on it or in its place, or the host can't do it.
std::optional<EntryKind> kindWithoutLinks(const std::string& path);
std::optional<std::string> linkTarget(const std::string& path);

struct Status {
    std::uint64_t size = 0;  // 0 of a folder
    platform::Date modified;
    // Which entry it is, and when anything about it last changed, which nobody can set back.
    std::uint64_t identity = 0;
    platform::Date changed;
};
std::optional<Status> statusOf(const std::string& path);

// Visits each entry but "." and "..", in the host's order; false when the folder can't be listed.
bool list(const std::string& path, const std::function<void(std::string_view name, EntryKind kind)>& visit);

// Of a regular file only, so that no pipe or device is waited for.
std::optional<std::string> read(const std::string& path);
// Creates or replaces a regular file; a link isn't written through.
bool write(const std::string& path, std::string_view contents);
// Parents are made as needed. True when the folder is there already.
bool makeFolders(const std::string& path);
bool makeLink(const std::string& path, const std::string& target);
bool removeAll(const std::string& path);
bool copyAll(const std::string& source, const std::string& destination);
// At one stroke, and only within a file system of the host.
bool rename(const std::string& source, const std::string& destination);

// Things made on the machine carry one date, so that no test sees the day on which it runs.
void setFixedDate(const std::string& path);

// Absolute and without links; empty when it is no folder.
std::optional<std::string> existingFolder(const std::string& path);
std::optional<std::string> makeTemporaryFolder();

}  // namespace desk::host
