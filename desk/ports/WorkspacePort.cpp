#include "desk/ports/WorkspacePort.h"

#include <utility>

#include "desk/processes/Activation.h"
#include "desk/processes/Faults.h"
#include "desk/processes/Journal.h"
#include "desk/processes/LaunchServices.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/processes/Processes.h"

namespace desk {

using platform::NSRunningApplication;

NSRunningApplication WorkspacePort::describe(const Process& process) {
    return {process.bundleIdentifier, process.processIdentifier, this};
}

std::vector<NSRunningApplication> WorkspacePort::runningApplications() {
    std::vector<NSRunningApplication> all;
    for (const Process& process : processes.running()) all.push_back(describe(process));
    return all;
}

std::optional<NSRunningApplication> WorkspacePort::frontmostApplication() {
    const Process* process = processes.frontmost();
    if (process == nullptr) return std::nullopt;
    return describe(*process);
}

std::int32_t WorkspacePort::currentProcessIdentifier() const {
    return application.processIdentifier();
}

bool WorkspacePort::activate(std::int32_t processIdentifier, unsigned options) {
    const Process* process = processes.find(processIdentifier);
    if (application.isDead() || process == nullptr) return false;
    journal.note(application.processIdentifier(),
                 "activate " + process->bundleIdentifier.value_or(process->name) + " " + std::to_string(options));
    activation.activate(processIdentifier,
                        (options & platform::NSApplicationActivationOptions::activateAllWindows) != 0);
    return true;
}

platform::Token WorkspacePort::addObserver(platform::WorkspaceNotification notification, std::function<void()> block) {
    return observers.add({notification, std::move(block)});
}

void WorkspacePort::openURLs(const std::vector<std::string>& filePaths, const std::string& applicationPath) {
    if (!application.isDead()) launchServices.openFiles(filePaths, applicationPath);
}

void WorkspacePort::openApplicationAtURL(const std::string& applicationPath) {
    openURLs({}, applicationPath);
}

bool WorkspacePort::openURL(const std::string& url) {
    if (application.isDead() || faults.urlsFail) return false;
    launchServices.openAddress(url);
    return true;
}

void WorkspacePort::notify(platform::WorkspaceNotification notification) const {
    observers.visit([&](const Observer& observer) {
        if (observer.notification == notification) observer.block();
    });
}

}  // namespace desk
