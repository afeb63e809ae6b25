// The launched applications, in order of launch. It starts them, tells them what happens on the machine, and destroys those that have ended once none of their calls is on the stack.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "desk/processes/LaunchedApplication.h"
#include "platform/Workspace.h"

namespace desk {

class Processes;
class Scheduler;

class Applications {
public:
    Applications(Scheduler& theScheduler, Processes& theProcesses, BackendFactory theBackendFactory);
    ~Applications();
    Applications(const Applications&) = delete;
    Applications& operator=(const Applications&) = delete;

    // Starts a copy; its launch callbacks run when the machine next settles.
    LaunchedApplication& launch(Bundle bundle, const ProgramFactory& factory);
    // Those that have ended and aren't destroyed yet among them.
    const std::vector<std::unique_ptr<LaunchedApplication>>& all() const { return running; }
    // Null when none of that number lives.
    LaunchedApplication* find(std::int32_t processIdentifier) const;

    void notify(platform::WorkspaceNotification notification);
    void reap();

private:
    Scheduler& scheduler;
    Processes& processes;
    BackendFactory makeBackend;
    std::vector<std::unique_ptr<LaunchedApplication>> running;
};

}  // namespace desk
