// A compiled script: its handlers, and what stands outside of them. The parser makes it; running it changes nothing in
// it.
#pragma once

#include "desk/applescript/Statement.h"

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace desk::applescript {

struct Handler {
    std::string name;
    // In lower case and as first written, by slot.
    std::vector<std::string> names;
    std::vector<std::string> writtenNames;
    // Slots. Those of `run` written in braces take one argument each; a single bare one takes the list of all.
    std::vector<std::size_t> parameters;
    bool takesArgumentsSeparately = true;
    Block body;
    std::set<std::string> declaredGlobal;
    // By slot: the place among the script's globals, if it is one.
    std::vector<std::optional<std::size_t>> globals;

    std::size_t slot(const std::string& folded, const std::string& written);
};

struct Program {
    // What stands outside of handlers; its variables are the script's globals.
    Handler main;
    std::vector<Handler> handlers;
    std::size_t globalCount = 0;

    const Handler* handler(std::string_view name) const;
};

}  // namespace desk::applescript
