// Runs shell lines in the host's bash without letting them out: the tools are functions that carry the Mac's full paths as names and act on the desk's disk,
// no program of the host can be started and none of its files written. Time that a line sleeps is virtual; a line that never ends is stopped.
#pragma once

#include <functional>
#include <string>

#include "platform/Time.h"

namespace desk {

class Disk;

struct ShellResult {
    int status = 0;
    std::string output;
    std::string errors;
};

class Shell {
public:
    // `sleep` is called for /bin/sleep.
    Shell(Disk& theDisk, std::function<void(platform::Duration)> theSleep)
        : disk(theDisk), sleep(std::move(theSleep)) {}

    ShellResult run(const std::string& line);

private:
    Disk& disk;
    std::function<void(platform::Duration)> sleep;
};

}  // namespace desk
