// Starting applications and opening files with them. An application that has no program here is sketched: it gets a plain window for each thing that is opened with it. It keeps a list of what
// was opened.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Geometry.h"
#include "platform/Windows.h"

namespace desk {

class Activation;
class Disk;
class Processes;
class Scheduler;
class WindowStack;
struct Process;

// Opened with another application; of an address there is none.
struct OpenedFiles {
    std::string application;
    std::vector<std::string> urls;
};

class LaunchServices {
public:
    LaunchServices(Scheduler& theScheduler, Disk& theDisk, Processes& theProcesses, WindowStack& theWindows,
                   Activation& theActivation)
        : scheduler(theScheduler),
          disk(theDisk),
          processes(theProcesses),
          windows(theWindows),
          activation(theActivation) {}

    // Another process with one ordinary window, behind all others. Its bundle stands in /Applications unless a path is given; an empty one: it has none.
    void startOtherProcess(const std::string& bundleIdentifier,
                           const std::optional<std::string>& bundlePath = std::nullopt);
    // Later in this instant: the application is started if it doesn't run, shows a window for each file or folder, and comes to the front; without any, it is opened as from the
    // Dock. Nothing happens when one of the files or the application isn't there.
    void openFiles(const std::vector<std::string>& paths, const std::string& applicationPath);
    // Files with the application that documents belong to; nothing happens without one.
    void openDocuments(const std::vector<std::string>& paths);
    // An address goes to who takes its kind, later in this instant. Of the network, nothing comes to the front: what would show it isn't there.
    void openAddress(const std::string& url);
    // The application at that path, as from the Dock: it is started if it doesn't run, comes to the front with all it has, and has a window.
    void openApplication(const std::string& applicationPath);

    // In order, since the start.
    const std::vector<OpenedFiles>& opened() const { return openedFiles; }

    // Set by who has programs to run: starts the one of the bundle at that path; false leaves it to be sketched.
    std::function<bool(const std::string& bundlePath)> startProgram;
    // The desk's own application at that path, which is there whatever the disk holds; `start` makes its process.
    void addOwnApplication(std::string path, std::function<void()> start) {
        ownApplications.insert_or_assign(std::move(path), std::move(start));
    }
    // Whoever takes the addresses that begin so.
    void addAddressHandler(std::string beginning, std::function<void(const std::string& url)> open) {
        addressHandlers.insert_or_assign(std::move(beginning), std::move(open));
    }

private:
    void openNow(const std::vector<std::string>& paths, const std::string& applicationPath);
    // One without a program.
    std::int32_t addSketched(Process process);
    // The process of the application at that path, started if there is none.
    std::int32_t runningAt(const std::string& bundlePath);
    bool runs(const std::string& bundlePath) const;
    bool hasWindow(std::int32_t processIdentifier) const;
    void addWindow(std::int32_t owner, const std::string& title, const platform::CGRect& frame,
                   platform::NSWindowOrderingMode place);

    Scheduler& scheduler;
    Disk& disk;
    Processes& processes;
    WindowStack& windows;
    Activation& activation;
    std::vector<OpenedFiles> openedFiles;
    std::map<std::string, std::function<void()>> ownApplications;
    std::map<std::string, std::function<void(const std::string& url)>> addressHandlers;
    // Apart from the numbers of Finder's windows and of applications' own.
    std::int64_t nextNumber = 1'000'001;
};

}  // namespace desk
