// The running processes: identifiers, order of launch, order of activation, which one is frontmost. Activation takes effect at once; its notification is posted
// to the launched applications as a later item. Raising windows on activation is the Machine's doing.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desk/processes/Ending.h"
#include "platform/Application.h"
#include "platform/Published.h"

namespace desk {

class WindowKeeper;

struct Process {
    std::int32_t processIdentifier = 0;
    std::optional<std::string> bundleIdentifier;
    std::string bundlePath;  // empty without a bundle
    std::string name;
    // Set by who started it.
    std::function<void(std::int32_t processIdentifier, Ending how)> end = nullptr;
    platform::NSApplicationActivationPolicy policy = platform::NSApplicationActivationPolicy::regular;
    WindowKeeper* keeper = nullptr;  // none: the desk only sketches its windows
};

class Processes {
public:
    explicit Processes(WindowKeeper& theSketched) : sketched(theSketched) {}

    // In order of launch.
    const std::vector<Process>& running() const { return list; }
    const Process* find(std::int32_t processIdentifier) const;
    // Of several, the one that was started last.
    const Process* findByBundleIdentifier(const std::string& bundleIdentifier) const;
    const Process* frontmost() const;

    // A new process goes to the end of the activation order.
    std::int32_t add(Process process);
    // When it was frontmost, the next in activation order is from now on, if there is one that isn't an agent.
    void remove(std::int32_t processIdentifier);
    // By who started it; nothing happens if it is gone.
    void end(std::int32_t processIdentifier, Ending how) const;
    void activate(std::int32_t processIdentifier);
    // Who has its windows; a sketched one's, and one's that is gone, are kept by the one keeper of these.
    WindowKeeper& keeperOf(std::int32_t processIdentifier) const;
    void setKeeper(std::int32_t processIdentifier, WindowKeeper& keeper);
    void setPolicy(std::int32_t processIdentifier, platform::NSApplicationActivationPolicy policy);

    // Delivered inside activate() and remove() when the frontmost process has changed.
    platform::Signal<> frontmostChanged;

private:
    WindowKeeper& sketched;
    std::vector<Process> list;
    std::vector<std::int32_t> activationOrder;  // latest first
    std::int32_t frontmostIdentifier = 0;
    std::int32_t nextIdentifier = 301;
};

}  // namespace desk
