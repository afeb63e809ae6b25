#include "desk/finder/FinderScripting.h"

#include <utility>

#include "desk/applescript/AppleScript.h"
#include "desk/finder/FinderScriptHost.h"
#include "desk/finder/ScriptSender.h"
#include "desk/processes/Faults.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/time/Scheduler.h"
#include "desk/time/WorkerQueue.h"

namespace desk {

using applescript::ScriptError;
using applescript::ScriptResult;
using platform::NSAppleScriptResult;

namespace {

constexpr std::size_t scriptsKept = 20;
constexpr std::int64_t appleEventHandlerFailed = -10000;

NSAppleScriptResult failed(const ScriptError& error) {
    platform::Dictionary dictionary{{platform::NSAppleScriptErrorNumber, error.number}};
    if (error.message) dictionary.emplace(platform::NSAppleScriptErrorMessage, *error.message);
    return {std::nullopt, std::move(dictionary)};
}

}  // namespace

// Holds the compiled script from its first run on.
class FinderScripting::Script final : public platform::NSAppleScript {
public:
    Script(FinderScripting& theScripting, LaunchedApplication& theApplication, std::string theSource)
        : scripting(theScripting), application(theApplication), source(std::move(theSource)) {}

    NSAppleScriptResult executeAndReturnError() override {
        ScriptError compilation;
        if (!compiled) compiled = applescript::compile(source, &compilation);
        if (!compiled) return failed(compilation);

        const WorkerQueue::Visit visit;
        ScriptSender sender(scripting.neighbours.permissions, application);
        if (sender.isGone()) return failed({-609, "Connection is invalid."});
        const platform::Duration latency = scripting.neighbours.faults.scriptLatency;
        const std::uint64_t place = scripting.record(source);
        const ScriptResult result = evaluate(sender);
        scripting.recordError(place, result.error ? result.error->message.value_or("") : "");
        if (!sender.wait(latency)) return failed({-609, "Connection is invalid."});
        scripting.recordAnswer(place);
        return result.error ? failed(*result.error) : NSAppleScriptResult{result.stringValue, std::nullopt};
    }

private:
    ScriptResult evaluate(ScriptSender& sender) {
        FinderScriptHost host(scripting.finder, scripting.neighbours, sender);
        const Faults& faults = scripting.neighbours.faults;
        if (!faults.scriptError && !faults.scriptAnswer) return applescript::run(*compiled, host);
        if (auto refusal = host.refusal()) return {std::nullopt, std::move(refusal)};
        if (faults.scriptError) return {std::nullopt, ScriptError{appleEventHandlerFailed, faults.scriptError}};
        return {faults.scriptAnswer, std::nullopt};
    }

    FinderScripting& scripting;
    LaunchedApplication& application;
    const std::string source;
    std::unique_ptr<applescript::CompiledScript> compiled;
};

std::unique_ptr<platform::NSAppleScript> FinderScripting::makeScript(LaunchedApplication& sender,
                                                                     const std::string& source) {
    return std::make_unique<Script>(*this, sender, source);
}

std::uint64_t FinderScripting::record(const std::string& source) {
    scripts.push_back({source, "", neighbours.scheduler.now()});
    if (scripts.size() > scriptsKept) scripts.pop_front();
    return ++sent;
}

void FinderScripting::recordError(std::uint64_t place, const std::string& error) {
    if (SentScript* script = recorded(place)) script->error = error;
}

void FinderScripting::recordAnswer(std::uint64_t place) {
    if (SentScript* script = recorded(place)) script->took = neighbours.scheduler.now() - script->sent;
}

// Null when it was sent too long ago.
SentScript* FinderScripting::recorded(std::uint64_t place) {
    const std::uint64_t fromTheEnd = sent - place;
    std::deque<SentScript>& kept = scripts;
    return fromTheEnd < kept.size() ? &kept[kept.size() - 1 - fromTheEnd] : nullptr;
}

}  // namespace desk
