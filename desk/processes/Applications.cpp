#include "desk/processes/Applications.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "desk/processes/Processes.h"

namespace desk {

Applications::Applications(Scheduler& theScheduler, Processes& theProcesses, BackendFactory theBackendFactory)
    : scheduler(theScheduler), processes(theProcesses), makeBackend(std::move(theBackendFactory)) {}

// The latest first: it may look at the others while it goes.
Applications::~Applications() {
    while (!running.empty()) running.pop_back();
}

LaunchedApplication& Applications::launch(Bundle bundle, const ProgramFactory& factory) {
    Process process;
    process.bundleIdentifier = bundle.identifier();
    process.bundlePath = bundle.path;
    process.name = bundle.name();
    process.end = [this](std::int32_t processIdentifier, Ending how) {
        if (LaunchedApplication* ended = find(processIdentifier)) ended->end(how);
    };
    const std::int32_t pid = processes.add(std::move(process));
    running.push_back(std::make_unique<LaunchedApplication>(scheduler, std::move(bundle), pid, makeBackend));
    LaunchedApplication& launched = *running.back();
    launched.start(factory);
    return launched;
}

LaunchedApplication* Applications::find(std::int32_t processIdentifier) const {
    const auto found = std::find_if(running.begin(), running.end(), [&](const auto& candidate) {
        return candidate->processIdentifier() == processIdentifier && !candidate->isDead();
    });
    return found == running.end() ? nullptr : found->get();
}

void Applications::notify(platform::WorkspaceNotification notification) {
    for (const auto& launched : running) launched->postWorkspaceNotification(notification);
}

void Applications::reap() {
    // Out of the list first: what an application does while it goes may look at the others.
    const auto isAlive = [](const auto& launched) { return !launched->isDead() || launched->isOnStack(); };
    const auto firstGone = std::stable_partition(running.begin(), running.end(), isAlive);
    std::vector<std::unique_ptr<LaunchedApplication>> gone(std::make_move_iterator(firstGone),
                                                           std::make_move_iterator(running.end()));
    running.erase(firstGone, running.end());
}

}  // namespace desk
