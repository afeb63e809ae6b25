#include "play/ScriptPlayer.h"

#include <ostream>

#include "play/Commands.h"

namespace play {

bool runCommand(const std::vector<Command>& table, std::string_view name, ScriptPlayer& player,
                const Arguments& arguments) {
    for (const auto& command : table) {
        if (command.name != name) continue;
        command.run(player, arguments);
        return true;
    }
    return false;
}

ScriptPlayer::ScriptPlayer(Session& theSession, std::string theFile, std::string_view scriptText,
                           std::ostream& theOutput, std::ostream& theErrors)
    : stage(theSession), file(std::move(theFile)), script(readScript(scriptText)), out(theOutput), errors(theErrors) {
    machine().scheduler.setDriver(this);
}

ScriptPlayer::~ScriptPlayer() {
    machine().scheduler.setDriver(nullptr);
}

int ScriptPlayer::play() {
    machine().settle();
    while (step()) {}
    return exitCode;
}

bool ScriptPlayer::step() {
    if (exitCode != 0) return false;
    if (parts.empty() && next == script.lines.size()) {
        if (script.error) fail(2, script.error->line, script.error->message);
        return false;
    }
    try {
        runNext();
        machine().settle();
    } catch (const Failure& failure) {
        fail(failure.exitCode, currentLine, failure.message);
    }
    return exitCode == 0;
}

void ScriptPlayer::runNext() {
    if (!parts.empty()) {
        const auto part = std::move(parts.front());
        parts.pop_front();
        part();
        return;
    }
    const ScriptLine& line = script.lines[next++];
    currentLine = line.number;
    const Arguments arguments(line, 1);
    const std::string& name = line.words.front().text;
    for (const auto* table : {&machineCommands(), &finderCommands(), &inputCommands(), &checkCommands()})
        if (runCommand(*table, name, *this, arguments)) return;
    badCommand("unknown command: " + name);
}

void ScriptPlayer::fail(int code, int line, const std::string& message) {
    if (exitCode != 0) return;
    exitCode = code;
    parts.clear();
    errors << file << ':' << line << ": " << message << '\n';
}

std::int64_t ScriptPlayer::finderWindow(const Arguments& arguments, std::size_t index) {
    if (arguments.is(index, "front")) {
        const auto* front = machine().finder.front();
        if (front == nullptr) missingTarget("Finder has no window in front");
        return front->number;
    }
    const std::int64_t number = arguments.integer(index);
    if (machine().finder.find(number) == nullptr) missingTarget("no Finder window " + arguments.text(index));
    return number;
}

}  // namespace play
