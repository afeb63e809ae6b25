#include "desk/finder/FinderScriptHost.h"

#include "desk/disk/Disk.h"
#include "desk/processes/Activation.h"
#include "desk/processes/Permissions.h"
#include "desk/processes/Processes.h"
#include "desk/shell/Shell.h"
#include "platform/FileURL.h"

namespace desk {

using applescript::ScriptPathKind;
using applescript::ScriptWindow;

namespace {

applescript::ScriptError handlerFailed() {
    return {-10000, "Finder got an error: AppleEvent handler failed."};
}

applescript::ScriptError noSuchWindow(std::int64_t identifier) {
    return {-1728, "Finder got an error: Can’t get Finder window id " + std::to_string(identifier) + "."};
}

}  // namespace

std::optional<applescript::ScriptError> FinderScriptHost::refusal() {
    if (sender.isGone()) return ScriptError{-609, "Connection is invalid."};
    if (!finder.isRunning()) return ScriptError::finderNotRunning();
    const bool answered =
        neighbours.permissions.automation != AutomationPermission::ask || sender.waitForAutomationAnswer();
    if (!answered || neighbours.permissions.automation != AutomationPermission::allowed)
        return ScriptError::finderNotAuthorized();
    // It may have quit while the prompt was up.
    if (!finder.isRunning()) return ScriptError::finderNotRunning();
    return std::nullopt;
}

std::vector<std::int64_t> FinderScriptHost::windowIdentifiers() {
    std::vector<std::int64_t> identifiers;
    for (const FinderWindow* window : finder.windows())
        if (window->kind == FinderWindowKind::folder) identifiers.push_back(window->number);
    return identifiers;
}

std::optional<ScriptWindow> FinderScriptHost::window(std::int64_t identifier) {
    const FinderWindow* window = finder.find(identifier);
    if (window == nullptr || window->kind != FinderWindowKind::folder) return std::nullopt;
    return ScriptWindow{window->name, window->target};
}

std::vector<std::string> FinderScriptHost::selection() {
    const std::vector<std::int64_t> identifiers = windowIdentifiers();
    return identifiers.empty() ? std::vector<std::string>() : finder.find(identifiers.front())->selection;
}

void FinderScriptHost::activate() {
    neighbours.activation.activateItself(finder.pid());
}

std::variant<std::int64_t, applescript::ScriptError> FinderScriptHost::openWindow(
    const std::optional<std::string>& path) {
    const auto number = finder.open(path.value_or(neighbours.disk.home()));
    if (!number) return handlerFailed();
    return *number;
}

std::optional<applescript::ScriptError> FinderScriptHost::setTarget(std::int64_t identifier, const std::string& path) {
    if (finder.find(identifier) == nullptr) return noSuchWindow(identifier);
    if (finder.go(identifier, path)) return std::nullopt;
    return handlerFailed();
}

// The item is revealed in the front window, which goes to its folder if it shows another.
std::optional<applescript::ScriptError> FinderScriptHost::select(const std::string& path) {
    const std::vector<std::int64_t> identifiers = windowIdentifiers();
    const std::string folder = platform::deletingLastPathComponent(path);
    const auto number = identifiers.empty() ? finder.open(folder) : std::optional(identifiers.front());
    const FinderWindow* window = number ? finder.find(*number) : nullptr;
    const bool isThere = window != nullptr && (window->target == folder || finder.go(*number, folder));
    if (isThere && finder.select(*number, {path})) return std::nullopt;
    return handlerFailed();
}

ScriptPathKind FinderScriptHost::pathKind(const std::string& path) {
    const auto kind = neighbours.disk.kind(path);
    if (!kind) return ScriptPathKind::missing;
    return *kind == platform::FileKind::directory ? ScriptPathKind::folder : ScriptPathKind::file;
}

void FinderScriptHost::delay(double seconds) {
    sender.wait(platform::seconds(seconds));
}

std::variant<std::string, applescript::ScriptError> FinderScriptHost::doShellScript(
    const std::string& command, bool /*withAdministratorPrivileges*/) {
    const auto sleep = [this](platform::Duration duration) { sender.wait(duration); };
    ShellResult result = Shell(neighbours.disk, sleep).run(command);
    if (result.status == 0) return std::move(result.output);
    while (!result.errors.empty() && result.errors.back() == '\n') result.errors.pop_back();
    if (result.errors.empty()) result.errors = "The command exited with a non-zero status.";
    return ScriptError{result.status, std::move(result.errors)};
}

}  // namespace desk
