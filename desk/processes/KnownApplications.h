// The applications that the desk itself knows by their places on the disk.
#pragma once

#include <optional>
#include <string>

#include "desk/disk/Disk.h"

namespace desk {

inline constexpr const char* finderPath = "/System/Library/CoreServices/Finder.app";
inline constexpr const char* terminalPath = "/System/Applications/Utilities/Terminal.app";
inline constexpr const char* systemSettingsPath = "/System/Applications/System Settings.app";
inline constexpr const char* browserPath = "/Applications/Safari.app";

// The one that documents are opened with, if the disk has one.
std::optional<std::string> knownEditor(const Disk& disk);

}  // namespace desk
