#include "actions/VSCodeService.h"

#include <array>

#include "platform/FileURL.h"

namespace brindle {

bool VSCodeService::open(const std::string& path) {
    const auto application = applicationPath();
    if (!application) return false;
    // A file URL of no path is that of the current directory.
    platform.workspace.openURLs({path.empty() ? platform.files.currentDirectoryPath() : path}, *application);
    return true;
}

std::optional<std::string> VSCodeService::applicationPath() {
    constexpr std::array candidates{"/Applications/Visual Studio Code.app", "~/Applications/Visual Studio Code.app"};
    for (const char* candidate : candidates) {
        std::string path = platform::stringByExpandingTildeInPath(candidate, platform.files.homeDirectory());
        if (platform.files.fileExistsAtPath(path)) return path;
    }
    return std::nullopt;
}

}  // namespace brindle
