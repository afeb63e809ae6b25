// How an error travels inside the compiler and the interpreter: thrown where it arises, caught by the script's own
// `try` or by compile() and run(). It never leaves this folder.
#pragma once

#include "desk/applescript/ScriptError.h"

#include <string>
#include <utility>

namespace desk::applescript {

struct Failure {
    ScriptError error;
    // A used-up budget: passes every `try` of the script.
    bool isFinal = false;
};

[[noreturn]] inline void fail(std::int64_t number, std::string message) {
    throw Failure{{number, std::move(message)}};
}

[[noreturn]] inline void failSyntax(const std::string& expected, const std::string& found) {
    fail(ErrorNumber::syntaxError, "Expected " + expected + " but found " + found + ".");
}

}  // namespace desk::applescript
