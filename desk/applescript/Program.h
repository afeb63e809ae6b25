// A compiled script. The parser makes it; running it changes nothing in it.
#pragma once

#include "desk/applescript/Statement.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace desk::applescript {

struct Program {
    // Of the variables, in lower case and as first written, by slot.
    std::vector<std::string> names;
    std::vector<std::string> writtenNames;
    // What stands outside of `on run`, which is run first.
    Block main;
    Block runHandler;
    // Where `on run` wants the list of the script's arguments.
    std::optional<std::size_t> argumentsSlot;

    std::size_t slot(const std::string& folded, const std::string& written);
};

}  // namespace desk::applescript
