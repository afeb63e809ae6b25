#include "desk/finder/FinderScripting.h"

#include <utility>

#include "desk/Machine.h"
#include "desk/applescript/AppleScript.h"
#include "desk/finder/FinderScriptHost.h"
#include "desk/finder/ScriptSender.h"
#include "desk/processes/LaunchedApplication.h"
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
    Script(Machine& theMachine, LaunchedApplication& theApplication, std::string theSource)
        : machine(theMachine), application(theApplication), source(std::move(theSource)) {}

    NSAppleScriptResult executeAndReturnError() override {
        ScriptError compilation;
        if (!compiled) compiled = applescript::compile(source, &compilation);
        if (!compiled) return failed(compilation);

        const WorkerQueue::Visit visit;
        ScriptSender sender(machine, application);
        if (sender.isGone()) return failed({-609, "Connection is invalid."});
        const platform::Duration latency = machine.faults.scriptLatency;
        const std::uint64_t place = machine.scripting.record(source);
        const ScriptResult result = evaluate(sender);
        machine.scripting.recordError(place, result.error ? result.error->message.value_or("") : "");
        if (!sender.wait(latency)) return failed({-609, "Connection is invalid."});
        machine.scripting.recordAnswer(place);
        return result.error ? failed(*result.error) : NSAppleScriptResult{result.stringValue, std::nullopt};
    }

private:
    ScriptResult evaluate(ScriptSender& sender) {
        FinderScriptHost host(machine, sender);
        const Faults& faults = machine.faults;
        if (!faults.scriptError && !faults.scriptAnswer) return applescript::run(*compiled, host);
        if (auto refusal = host.refusal()) return {std::nullopt, std::move(refusal)};
        if (faults.scriptError) return {std::nullopt, ScriptError{appleEventHandlerFailed, faults.scriptError}};
        return {faults.scriptAnswer, std::nullopt};
    }

    Machine& machine;
    LaunchedApplication& application;
    const std::string source;
    std::unique_ptr<applescript::CompiledScript> compiled;
};

std::unique_ptr<platform::NSAppleScript> FinderScripting::makeScript(LaunchedApplication& sender,
                                                                     const std::string& source) {
    return std::make_unique<Script>(machine, sender, source);
}

std::uint64_t FinderScripting::record(const std::string& source) {
    machine.sentScripts.push_back({source, "", machine.scheduler.now()});
    if (machine.sentScripts.size() > scriptsKept) machine.sentScripts.pop_front();
    return ++sent;
}

void FinderScripting::recordError(std::uint64_t place, const std::string& error) {
    if (SentScript* script = recorded(place)) script->error = error;
}

void FinderScripting::recordAnswer(std::uint64_t place) {
    if (SentScript* script = recorded(place)) script->took = machine.scheduler.now() - script->sent;
}

// Null when it was sent too long ago.
SentScript* FinderScripting::recorded(std::uint64_t place) {
    const std::uint64_t fromTheEnd = sent - place;
    std::deque<SentScript>& kept = machine.sentScripts;
    return fromTheEnd < kept.size() ? &kept[kept.size() - 1 - fromTheEnd] : nullptr;
}

}  // namespace desk
