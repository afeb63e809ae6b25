#include "desk/applescript/FilePath.h"

namespace desk::applescript {

namespace {

constexpr std::string_view startupDiskName = "Macintosh HD";
constexpr std::string_view otherDisks = "/Volumes/";

std::string exchanged(std::string_view text) {
    std::string result(text);
    for (char& character : result) {
        character = character == ':' ? '/' : character == '/' ? ':' : character;
    }
    return result;
}

}  // namespace

std::string_view lastComponent(std::string_view path) {
    return path == "/" ? startupDiskName : path.substr(path.rfind('/') + 1);
}

std::string finderName(std::string_view diskName) {
    return exchanged(diskName);
}

std::string colonPath(std::string_view posixPath, bool isFolder) {
    std::string path(startupDiskName);
    if (posixPath.substr(0, otherDisks.size()) == otherDisks) {
        path = exchanged(posixPath.substr(otherDisks.size()));
    } else if (posixPath != "/") {
        path += exchanged(posixPath);
    }
    return path + (isFolder ? ":" : "");
}

std::string quotedForShell(std::string_view text) {
    std::string quoted = "'";
    for (const char character : text) {
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return quoted + "'";
}

}  // namespace desk::applescript
