// What a check of the soak run found wrong, and how a script would say it.
#pragma once

#include <string>
#include <vector>

namespace play {

struct Finding {
    std::string check;    // its name: a shorter story counts as the same fault when the same check fails
    std::string message;  // in words
    std::vector<std::string>
        expectations;  // lines of a script that fail while the fault is there; none when a script can't see it
};

}  // namespace play
