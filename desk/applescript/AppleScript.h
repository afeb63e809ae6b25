// Compiles and runs AppleScript: the language subset that the system's own scripts use, with Finder's terms. What else
// the language has is refused when a script is compiled: lists and records of one's own, arithmetic, handlers other
// than `run`, applications other than Finder.
#pragma once

#include "desk/applescript/ScriptHost.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace desk::applescript {

struct Program;

class CompiledScript {
public:
    explicit CompiledScript(std::unique_ptr<const Program> compiledProgram);
    ~CompiledScript();

    const Program& program() const { return *compiled; }

private:
    std::unique_ptr<const Program> compiled;
};

struct ScriptResult {
    // The result as text; empty for lists, references and a script without a result. Meaningless on an error.
    std::optional<std::string> stringValue;
    std::optional<ScriptError> error;
};

// What a script may use up before it is stopped, which no `try` of its own can prevent.
struct ScriptLimits {
    std::int64_t steps = 2'000'000;
};

// Empty if the source is refused, with the reason in `error` where one is wanted. Source is UTF-8; other bytes pass
// through string literals untouched.
std::unique_ptr<CompiledScript> compile(std::string_view source, ScriptError* error = nullptr);

// A compiled script isn't changed by running, so that several threads may run the same one. The arguments go to an
// `on run argv` handler.
ScriptResult run(const CompiledScript& script, ScriptHost& host, const std::vector<std::string>& arguments = {},
                 const ScriptLimits& limits = {});

}  // namespace desk::applescript
