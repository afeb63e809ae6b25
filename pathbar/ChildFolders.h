// What a crumb's folder menu lists: the folders inside a folder, as they are on disk now. Packages, files, hidden entries
// and links are no folders here. BreadcrumbView asks each time a menu opens; nothing is kept.
#pragma once

#include <vector>

#include "pathbar/BreadcrumbItem.h"
#include "platform/Platform.h"

namespace brindle {

// In the platform's order of names. Empty when the folder can't be listed, and of an item without a path. One directory
// read, on the calling thread, which is the main one.
std::vector<BreadcrumbItem> childFolders(platform::Platform& platform, const BreadcrumbItem& of);

}  // namespace brindle
