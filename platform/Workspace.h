// The other applications: which run, which is in front, bringing one forward, opening files with one, and notifications about them.
// Main thread only.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Token.h"

namespace platform {

class Workspace;

namespace NSApplicationActivationOptions {
inline constexpr unsigned activateAllWindows = 1;
inline constexpr unsigned activateIgnoringOtherApps = 2;
}  // namespace NSApplicationActivationOptions

// A running application as of the moment it was asked for.
struct NSRunningApplication {
    std::optional<std::string> bundleIdentifier;
    std::int32_t processIdentifier = 0;
    Workspace* workspace = nullptr;

    // Answers whether the process was there to be activated. Takes effect at once; the notification comes in a later turn.
    bool activateWithOptions(unsigned options) const;
};

enum class WorkspaceNotification { didActivateApplication, activeSpaceDidChange };

class Workspace {
public:
    virtual ~Workspace() = default;

    // In order of launch.
    virtual std::vector<NSRunningApplication> runningApplications() = 0;
    virtual std::optional<NSRunningApplication> frontmostApplication() = 0;
    virtual std::int32_t currentProcessIdentifier() const = 0;
    virtual bool activate(std::int32_t processIdentifier, unsigned options) = 0;

    // The block runs on the main queue.
    virtual Token addObserver(WorkspaceNotification notification, std::function<void()> block) = 0;

    // Opens the files with the application at that path, with a default configuration and nobody told of the outcome. Paths, absolute.
    virtual void openURLs(const std::vector<std::string>& filePaths, const std::string& applicationPath) = 0;
    // Starts the application at that path, or brings it forward, with a default configuration and nobody told of the outcome.
    virtual void openApplicationAtURL(const std::string& applicationPath) = 0;
    // Opens an address with whatever the user has for it. Answers whether anything took it.
    virtual bool openURL(const std::string& url) = 0;
};

inline bool NSRunningApplication::activateWithOptions(unsigned options) const {
    return workspace != nullptr && workspace->activate(processIdentifier, options);
}

}  // namespace platform
