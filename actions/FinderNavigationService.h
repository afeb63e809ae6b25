// Makes Finder show a location that the user typed or picked, by an AppleScript written for that one request. The bar's
// root view uses it. It remembers nothing, shows no failure itself, and each of its operations blocks until Finder has
// answered. Main thread only.
#pragma once

#include <string>

#include "actions/FinderNavigationError.h"
#include "platform/Platform.h"

namespace brindle {

class FinderNavigationService {
public:
    explicit FinderNavigationService(platform::Platform& thePlatform) : platform(thePlatform) {}

    // Shows a folder in Finder's front window, or the folder that holds a file, with the file selected. Throws
    // FinderNavigationError.
    void navigateFrontWindow(const std::string& to);

    // Folders only. Throws FinderNavigationError.
    void openNewWindow(const std::string& at);

    // The standardized path of a folder that exists. Throws FinderNavigationError: invalidPath or notDirectory.
    std::string normalizedDirectoryPath(const std::string& from);

private:
    struct ResolvedTarget {
        std::string path;  // standardized and absolute
        platform::FileKind kind;
    };

    // Throws FinderNavigationError: invalidPath.
    ResolvedTarget resolvedTargetPath(const std::string& from);
    // Throws FinderNavigationError: appleScriptFailed.
    void run(const std::string& source);

    platform::Platform& platform;
};

}  // namespace brindle
