// What a running script may ask of the machine: Finder's windows and selection, the disk, the clock and the shell.
// The stand-in Finder implements it; the interpreter is its only caller. It knows nothing of the language.
#pragma once

#include "desk/applescript/ScriptError.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace desk::applescript {

struct ScriptWindow {
    std::string name;
    // The folder shown, as a path without a trailing slash; empty for a location that is no folder, such as Recents.
    std::optional<std::string> path;
};

enum class ScriptPathKind { missing, file, folder };

// Paths are absolute, without a trailing slash except for "/". An operation that can fail answers its error, or
// nothing when it succeeded. All calls come from the thread that runs the script.
class ScriptHost {
public:
    virtual ~ScriptHost() = default;

    // Why Finder can't be spoken to at this moment: not running, not permitted. Asked before each request to Finder.
    virtual std::optional<ScriptError> refusal() = 0;

    // Front to back, minimised windows and those of other spaces included.
    virtual std::vector<std::int64_t> windowIdentifiers() = 0;
    virtual std::optional<ScriptWindow> window(std::int64_t identifier) = 0;
    virtual std::vector<std::string> selection() = 0;

    virtual void activate() = 0;
    // Without a path the window shows what Finder shows by default. The path is a folder that exists.
    virtual std::variant<std::int64_t, ScriptError> openWindow(const std::optional<std::string>& path) = 0;
    virtual std::optional<ScriptError> setTarget(std::int64_t identifier, const std::string& path) = 0;
    // Replaces the selection, revealing the item in the front window. The path exists.
    virtual std::optional<ScriptError> select(const std::string& path) = 0;

    // Symbolic links are followed; a package is a folder here.
    virtual ScriptPathKind pathKind(const std::string& path) = 0;

    virtual void delay(double seconds) = 0;
    // The standard output as it came, or the exit status with what was written on standard error.
    virtual std::variant<std::string, ScriptError> doShellScript(const std::string& command,
                                                                 bool withAdministratorPrivileges) = 0;
};

}  // namespace desk::applescript
