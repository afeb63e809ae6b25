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

namespace {

class TextSource final : public LineSource {
public:
    explicit TextSource(std::string_view text) : script(readScript(text)) {}

    std::optional<ScriptLine> next() override {
        if (position < script.lines.size()) return std::move(script.lines[position++]);
        if (!script.error) return std::nullopt;
        return ScriptLine{script.error->line, script.error->message, {}};
    }

private:
    Script script;
    std::size_t position = 0;
};

}  // namespace

ScriptPlayer::ScriptPlayer(Session& theSession, std::string theFile, std::string_view scriptText,
                           std::ostream& theOutput, std::ostream& theErrors)
    : ScriptPlayer(theSession, std::move(theFile), std::make_unique<TextSource>(scriptText), theOutput, theErrors) {}

ScriptPlayer::ScriptPlayer(Session& theSession, std::string theFile, std::unique_ptr<LineSource> theSource,
                           std::ostream& theOutput, std::ostream& theErrors)
    : stage(theSession), file(std::move(theFile)), source(std::move(theSource)), out(theOutput), errors(theErrors) {
    machine().scheduler.setDriver(this);
}

ScriptPlayer::~ScriptPlayer() {
    machine().scheduler.setDriver(nullptr);
}

int ScriptPlayer::play() {
    machine().settle();
    while (step()) {}
    return code;
}

bool ScriptPlayer::step() {
    if (code != 0) return false;
    try {
        if (!runNext()) return false;
        machine().settle();
    } catch (const Failure& failure) {
        if (!source->goesOnAfter(failure)) fail(failure.exitCode, currentLine, failure.message);
    }
    return code == 0;
}

bool ScriptPlayer::runNext() {
    if (parts.empty()) {
        const auto line = source->next();
        if (line) run(*line);
        return line.has_value();
    }
    const auto part = std::move(parts.front());
    parts.pop_front();
    part();
    return true;
}

void ScriptPlayer::run(const ScriptLine& line) {
    currentLine = line.number;
    if (line.words.empty()) badCommand(line.source);
    const Arguments arguments(line, 1);
    const std::string& name = line.words.front().text;
    for (const auto* table :
         {&machineCommands(), &applicationCommands(), &finderCommands(), &inputCommands(), &checkCommands()})
        if (runCommand(*table, name, *this, arguments)) return;
    badCommand("unknown command: " + name);
}

void ScriptPlayer::fail(int exitCode, int line, const std::string& message) {
    if (code != 0) return;
    code = exitCode;
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

void ScriptPlayer::requireBeforeLaunch() const {
    if (stage.hasLaunched()) badCommand("this comes before launch");
}

void ScriptPlayer::requirePath(const std::string& path) const {
    if (!stage.machine.disk.exists(path)) badCommand("nothing stands at " + path);
}

}  // namespace play
