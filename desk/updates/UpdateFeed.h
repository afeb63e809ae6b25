// What update feeds answer on this machine: each what stands at its address on the Mac's disk, unless it is said what all answer, or that none can be reached. Nothing comes from a network.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "platform/Signal.h"
#include "platform/Time.h"

namespace desk {

class Disk;

class UpdateFeed {
public:
    explicit UpdateFeed(const Disk& theDisk) : disk(theDisk) {}

    // From now on.
    void answer(std::string text) { source = {Kind::told, std::move(text)}; }
    void goOff() { source = {Kind::off, {}}; }
    platform::Duration latency{0};

    // Empty when it can't be reached.
    std::optional<std::string> fetch(const std::string& address) const;

    // Has the updater of that process check of its own accord.
    platform::Signal<std::int32_t> checkNow;

private:
    enum class Kind { addresses, told, off };
    struct Source {
        Kind kind = Kind::addresses;
        std::string text;
    };

    const Disk& disk;
    Source source;
};

// The path that a file URL names; empty for any other address.
std::string pathOfFileURL(const std::string& url);

}  // namespace desk
