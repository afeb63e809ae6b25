// The command-line tools of the Mac that shell lines may call, each acting on the desk's disk. They parse their own arguments, and nothing of the shell.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desk/shell/Shell.h"

namespace desk {

class ShellTools {
public:
    ShellTools(Disk& theDisk, const std::function<void(platform::Duration)>& theSleep)
        : disk(theDisk), sleep(theSleep) {}

    // Full paths, such as /bin/rm.
    static std::vector<std::string> paths();
    // The tool's path first.
    ShellResult run(const std::vector<std::string>& command);

private:
    // What a tool was called with: letters after dashes, and the rest.
    struct Call {
        std::string name;
        std::string options;
        std::vector<std::string> operands;
    };
    struct Tool {
        const char* path;
        ShellResult (ShellTools::*run)(const Call&);
    };
    static const std::vector<Tool>& tools();
    std::string placedIn(const std::string& destination, const std::string& source) const;

    ShellResult cat(const Call& call);
    ShellResult copy(const Call& call);
    ShellResult list(const Call& call);
    ShellResult makeFolder(const Call& call);
    ShellResult move(const Call& call);
    ShellResult remove(const Call& call);
    ShellResult pause(const Call& call);
    ShellResult touch(const Call& call);

    Disk& disk;
    const std::function<void(platform::Duration)>& sleep;
};

}  // namespace desk
