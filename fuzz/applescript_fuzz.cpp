// Compiles and runs arbitrary text as a script against a tiny Finder, within small limits: no input may crash, hang or
// use up the machine.
#include "desk/applescript/AppleScript.h"

#include <algorithm>

namespace {

using namespace desk::applescript;

class TinyHost : public ScriptHost {
public:
    std::optional<ScriptError> refusal() override { return std::nullopt; }
    std::vector<std::int64_t> windowIdentifiers() override { return {101, 102}; }
    std::optional<ScriptWindow> window(std::int64_t identifier) override {
        if (identifier == 101) {
            return ScriptWindow{"ana", "/Users/ana"};
        }
        return identifier == 102 ? std::optional(ScriptWindow{"Recents", std::nullopt}) : std::nullopt;
    }
    std::vector<std::string> selection() override { return {"/Users/ana/note.txt"}; }
    void activate() override {}
    std::variant<std::int64_t, ScriptError> openWindow(const std::optional<std::string>&) override { return 101; }
    std::optional<ScriptError> setTarget(std::int64_t, const std::string&) override { return std::nullopt; }
    std::optional<ScriptError> select(const std::string&) override { return std::nullopt; }
    ScriptPathKind pathKind(const std::string& path) override {
        const std::vector<std::string> folders{"/", "/Users", "/Users/ana", "/Users/ana/Desktop"};
        const bool isFolder = std::find(folders.begin(), folders.end(), path) != folders.end();
        return isFolder                        ? ScriptPathKind::folder
               : path == "/Users/ana/note.txt" ? ScriptPathKind::file
                                               : ScriptPathKind::missing;
    }
    void delay(double) override {}
    std::variant<std::string, ScriptError> doShellScript(const std::string& command, bool) override {
        return command + "\n";
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    const std::string source(reinterpret_cast<const char*>(bytes), size);
    const std::unique_ptr<CompiledScript> script = compile(source, nullptr);
    if (script != nullptr) {
        TinyHost host;
        run(*script, host, {"first", "second"}, ScriptLimits{50'000});
    }
    return 0;
}
