#include "desk/processes/Processes.h"

#include <algorithm>
#include <utility>

#include "platform/FileURL.h"

namespace desk {

using platform::NSApplicationActivationPolicy;

namespace {

constexpr std::pair<std::string_view, const char*> knownApplications[] = {
    {"Terminal", "com.apple.Terminal"}, {"Visual Studio Code", "com.microsoft.VSCode"}};

std::string applicationName(const std::string& bundlePath) {
    const std::string_view last = platform::lastPathComponent(bundlePath);
    return std::string(last.ends_with(".app") ? last.substr(0, last.size() - 4) : last);
}

std::optional<std::string> knownIdentifier(std::string_view name) {
    for (const auto& [known, identifier] : knownApplications)
        if (known == name) return identifier;
    return std::nullopt;
}

}  // namespace

const Process* Processes::find(std::int32_t processIdentifier) const {
    const auto found = std::find_if(list.begin(), list.end(), [&](const Process& process) {
        return process.processIdentifier == processIdentifier;
    });
    return found == list.end() ? nullptr : &*found;
}

const Process* Processes::findByBundleIdentifier(const std::string& bundleIdentifier) const {
    const auto found = std::find_if(
        list.begin(), list.end(), [&](const Process& process) { return process.bundleIdentifier == bundleIdentifier; });
    return found == list.end() ? nullptr : &*found;
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

std::int32_t Processes::openApplication(const std::string& bundlePath) {
    for (const Process& process : list)
        if (process.bundlePath == bundlePath) return process.processIdentifier;
    Process process;
    process.name = applicationName(bundlePath);
    process.bundleIdentifier = knownIdentifier(process.name);
    process.bundlePath = bundlePath;
    return add(std::move(process));
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
