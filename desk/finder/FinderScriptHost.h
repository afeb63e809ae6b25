// Finder and the machine as one running script sees them: what the interpreter asks for is done here and now on Finder's real windows and the real disk.
// Made for one run of a script; it keeps nothing beyond it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "desk/applescript/ScriptHost.h"
#include "desk/finder/Finder.h"
#include "desk/finder/ScriptSender.h"

namespace desk {

class FinderScriptHost final : public applescript::ScriptHost {
public:
    using ScriptError = applescript::ScriptError;

    FinderScriptHost(Finder& theFinder, const FinderNeighbours& theNeighbours, ScriptSender& theSender)
        : finder(theFinder), neighbours(theNeighbours), sender(theSender) {}

    std::optional<ScriptError> refusal() override;
    std::vector<std::int64_t> windowIdentifiers() override;
    std::optional<applescript::ScriptWindow> window(std::int64_t identifier) override;
    std::vector<std::string> selection() override;

    void activate() override;
    std::variant<std::int64_t, ScriptError> openWindow(const std::optional<std::string>& path) override;
    std::optional<ScriptError> setTarget(std::int64_t identifier, const std::string& path) override;
    std::optional<ScriptError> select(const std::string& path) override;

    applescript::ScriptPathKind pathKind(const std::string& path) override;
    void delay(double seconds) override;
    std::variant<std::string, ScriptError> doShellScript(const std::string& command,
                                                         bool withAdministratorPrivileges) override;

private:
    Finder& finder;
    FinderNeighbours neighbours;
    ScriptSender& sender;
};

}  // namespace desk
