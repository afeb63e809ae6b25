// The other processes as one application sees them, and its notifications about them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Registry.h"
#include "platform/Workspace.h"

namespace desk {

class Activation;
class Faults;
class Journal;
class LaunchServices;
class LaunchedApplication;
class Processes;
struct Process;

class WorkspacePort final : public platform::Workspace {
public:
    WorkspacePort(Processes& theProcesses, Activation& theActivation, LaunchServices& theLaunchServices,
                  Faults& theFaults, Journal& theJournal, LaunchedApplication& theApplication)
        : processes(theProcesses),
          activation(theActivation),
          launchServices(theLaunchServices),
          faults(theFaults),
          journal(theJournal),
          application(theApplication) {}

    std::vector<platform::NSRunningApplication> runningApplications() override;
    std::optional<platform::NSRunningApplication> frontmostApplication() override;
    std::int32_t currentProcessIdentifier() const override;
    bool activate(std::int32_t processIdentifier, unsigned options) override;
    platform::Token addObserver(platform::WorkspaceNotification notification, std::function<void()> block) override;
    void openURLs(const std::vector<std::string>& filePaths, const std::string& applicationPath) override;
    void openApplicationAtURL(const std::string& applicationPath) override;
    bool openURL(const std::string& url) override;

    // Inside a turn of the application.
    void notify(platform::WorkspaceNotification notification) const;
    std::size_t observerCount() const { return observers.size(); }

private:
    struct Observer {
        platform::WorkspaceNotification notification;
        std::function<void()> block;
    };

    platform::NSRunningApplication describe(const Process& process);

    Processes& processes;
    Activation& activation;
    LaunchServices& launchServices;
    Faults& faults;
    Journal& journal;
    LaunchedApplication& application;
    platform::Registry<Observer> observers;
};

}  // namespace desk
