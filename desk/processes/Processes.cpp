#include "desk/processes/Processes.h"

#include <algorithm>
#include <utility>

namespace desk {

using platform::NSApplicationActivationPolicy;

const Process* Processes::find(std::int32_t processIdentifier) const {
    const auto found = std::find_if(list.begin(), list.end(), [&](const Process& process) {
        return process.processIdentifier == processIdentifier;
    });
    return found == list.end() ? nullptr : &*found;
}

const Process* Processes::findByBundleIdentifier(const std::string& bundleIdentifier) const {
    const auto found = std::find_if(list.rbegin(), list.rend(), [&](const Process& process) {
        return process.bundleIdentifier == bundleIdentifier;
    });
    return found == list.rend() ? nullptr : &*found;
}

const Process* Processes::frontmost() const {
    return find(frontmostIdentifier);
}

std::int32_t Processes::add(Process process) {
    process.processIdentifier = nextIdentifier++;
    list.push_back(std::move(process));
    activationOrder.push_back(list.back().processIdentifier);
    return list.back().processIdentifier;
}

void Processes::end(std::int32_t processIdentifier, Ending how) const {
    const Process* process = find(processIdentifier);
    if (process == nullptr || !process->end) return;
    // By value, since the entry goes with the process.
    const auto ending = process->end;
    ending(processIdentifier, how);
}

void Processes::remove(std::int32_t processIdentifier) {
    std::erase_if(list, [&](const Process& process) { return process.processIdentifier == processIdentifier; });
    std::erase(activationOrder, processIdentifier);
    if (frontmostIdentifier != processIdentifier) return;
    const auto next = std::find_if(activationOrder.begin(), activationOrder.end(), [this](std::int32_t identifier) {
        return find(identifier)->policy == NSApplicationActivationPolicy::regular;
    });
    frontmostIdentifier = next == activationOrder.end() ? 0 : *next;
    frontmostChanged();
}

void Processes::activate(std::int32_t processIdentifier) {
    const Process* process = find(processIdentifier);
    if (process == nullptr || process->policy == NSApplicationActivationPolicy::prohibited) return;
    const auto place = std::find(activationOrder.begin(), activationOrder.end(), processIdentifier);
    std::rotate(activationOrder.begin(), place, place + 1);
    if (std::exchange(frontmostIdentifier, processIdentifier) != processIdentifier) frontmostChanged();
}

WindowKeeper& Processes::keeperOf(std::int32_t processIdentifier) const {
    const Process* process = find(processIdentifier);
    return process == nullptr || process->keeper == nullptr ? sketched : *process->keeper;
}

void Processes::setKeeper(std::int32_t processIdentifier, WindowKeeper& keeper) {
    for (Process& process : list)
        if (process.processIdentifier == processIdentifier) process.keeper = &keeper;
}

void Processes::setPolicy(std::int32_t processIdentifier, NSApplicationActivationPolicy policy) {
    for (Process& process : list)
        if (process.processIdentifier == processIdentifier) process.policy = policy;
}

}  // namespace desk
