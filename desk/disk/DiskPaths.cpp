#include "desk/disk/DiskPaths.h"

namespace desk {

std::string joined(std::string_view folder, std::string_view name) {
    std::string path(folder == "/" ? "" : folder);
    path += '/';
    path += name;
    return path;
}

std::string_view below(std::string_view folder, std::string_view path) {
    if (folder == "/") return path.substr(1);
    const bool isBelow =
        path.size() > folder.size() && path.substr(0, folder.size()) == folder && path[folder.size()] == '/';
    return isBelow ? path.substr(folder.size() + 1) : std::string_view();
}

bool isAtOrBelow(std::string_view folder, std::string_view path) {
    return path == folder || !below(folder, path).empty();
}

}  // namespace desk
