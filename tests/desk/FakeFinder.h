// A Finder and a disk in memory for the tests of scripts: folders and files by path, windows front to back, and a
// record of what a script made it do. It has no geometry and no time.
#pragma once

#include "desk/applescript/AppleScript.h"

#include <algorithm>
#include <map>
#include <set>

namespace desk::applescript {

struct FakeFinder : ScriptHost {
    struct Window {
        std::int64_t identifier;
        ScriptWindow state;
    };

    std::vector<Window> openWindows;
    std::vector<std::string> selected;
    std::set<std::string> folders{"/", "/Users", "/Users/ana", "/Users/ana/Desktop", "/Users/ana/Fotos"};
    std::set<std::string> files{"/Users/ana/note.txt", "/Users/ana/Desktop/todo.txt"};
    std::map<std::string, std::variant<std::string, ScriptError>> shell;
    std::vector<std::string> calls;

    void addWindow(std::int64_t identifier, std::string name, std::optional<std::string> path) {
        openWindows.push_back({identifier, {std::move(name), std::move(path)}});
    }

    std::optional<ScriptError> refusal() override { return std::nullopt; }
    std::vector<std::int64_t> windowIdentifiers() override {
        std::vector<std::int64_t> identifiers;
        for (const Window& window : openWindows) {
            identifiers.push_back(window.identifier);
        }
        return identifiers;
    }
    std::optional<ScriptWindow> window(std::int64_t identifier) override {
        const auto found = find(identifier);
        return found == openWindows.end() ? std::nullopt : std::optional(found->state);
    }
    std::vector<std::string> selection() override { return selected; }
    void activate() override { calls.push_back("activate"); }
    std::variant<std::int64_t, ScriptError> openWindow(const std::optional<std::string>& path) override {
        calls.push_back("open window " + path.value_or("?"));
        const std::int64_t identifier = 101 + static_cast<std::int64_t>(openWindows.size());
        openWindows.insert(openWindows.begin(), {identifier, {"new", path}});
        return identifier;
    }
    std::optional<ScriptError> setTarget(std::int64_t identifier, const std::string& path) override {
        calls.push_back("target " + std::to_string(identifier) + " " + path);
        find(identifier)->state.path = path;
        return std::nullopt;
    }
    std::optional<ScriptError> select(const std::string& path) override {
        calls.push_back("select " + path);
        return std::nullopt;
    }
    ScriptPathKind pathKind(const std::string& path) override {
        return folders.count(path) > 0 ? ScriptPathKind::folder
               : files.count(path) > 0 ? ScriptPathKind::file
                                       : ScriptPathKind::missing;
    }
    void delay(double seconds) override { calls.push_back("delay " + std::to_string(seconds)); }
    std::variant<std::string, ScriptError> doShellScript(const std::string& command, bool asAdministrator) override {
        calls.push_back((asAdministrator ? "sudo " : "sh ") + command);
        return shell[command];
    }

private:
    std::vector<Window>::iterator find(std::int64_t identifier) {
        return std::find_if(openWindows.begin(), openWindows.end(),
                            [&](const Window& window) { return window.identifier == identifier; });
    }
};

// The text of the result; or the number and message of the error, of the compilation or of the run.
inline std::string answer(const std::string& source, ScriptHost& host, const std::vector<std::string>& arguments = {}) {
    const auto told = [](const ScriptError& error) {
        return std::to_string(error.number) + " " + error.message.value_or("");
    };
    ScriptError refusal;
    const std::unique_ptr<CompiledScript> script = compile(source, &refusal);
    if (script == nullptr) {
        return "syntax " + told(refusal);
    }
    const ScriptResult result = run(*script, host, arguments);
    return result.error ? told(*result.error) : result.stringValue.value_or("(nothing)");
}

}  // namespace desk::applescript
