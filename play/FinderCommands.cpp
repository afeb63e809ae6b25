#include <ostream>
#include <string>

#include "play/Commands.h"
#include "play/ScriptPlayer.h"

namespace play {

namespace {

desk::Finder& runningFinder(ScriptPlayer& player) {
    if (!player.machine().finder.isRunning()) missingTarget("Finder isn't running");
    return player.machine().finder;
}

std::string existingPath(ScriptPlayer& player, const Arguments& arguments, std::size_t index) {
    std::string path = arguments.path(index);
    if (!player.machine().disk.exists(path)) badCommand("nothing stands at " + path);
    return path;
}

std::string existingFolder(ScriptPlayer& player, const Arguments& arguments, std::size_t index) {
    std::string path = existingPath(player, arguments, index);
    if (player.machine().disk.kind(path) != platform::FileKind::directory) badCommand("not a folder: " + path);
    return path;
}

std::optional<platform::CGRect> optionalFrame(const Arguments& arguments, std::size_t index) {
    if (arguments.count() == index) return std::nullopt;
    arguments.requireCount(index + 4, index + 4);
    return arguments.rect(index);
}

void requireDone(bool done, const std::string& message) {
    if (!done) missingTarget(message);
}

void tellNumber(ScriptPlayer& player, const std::optional<std::int64_t>& number) {
    requireDone(number.has_value(), "Finder didn't open the window");
    player.output() << *number << '\n' << std::flush;
}

void open(ScriptPlayer& player, const Arguments& arguments) {
    const std::string path = existingFolder(player, arguments, 0);
    tellNumber(player, runningFinder(player).open(path, optionalFrame(arguments, 1)));
}

void openVirtual(ScriptPlayer& player, const Arguments& arguments) {
    const std::string& name = arguments.text(0);
    tellNumber(player, runningFinder(player).openVirtual(name, optionalFrame(arguments, 1)));
}

void openInfoPanel(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    tellNumber(player, runningFinder(player).openInfoPanel(existingPath(player, arguments, 0)));
}

using WindowOperation = bool (desk::Finder::*)(std::int64_t);

template <WindowOperation operation>
void onWindow(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    const std::int64_t number = player.finderWindow(arguments, 0);
    requireDone((runningFinder(player).*operation)(number), "the window doesn't do that: " + arguments.text(0));
}

void go(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(2, 2);
    const std::string path = existingFolder(player, arguments, 1);
    requireDone(runningFinder(player).go(player.finderWindow(arguments, 0), path), "the window shows no folders");
}

void select(ScriptPlayer& player, const Arguments& arguments) {
    std::vector<std::string> paths;
    for (std::size_t i = 1; i < arguments.count(); ++i) paths.push_back(existingPath(player, arguments, i));
    requireDone(runningFinder(player).select(player.finderWindow(arguments, 0), paths), "the window shows no folders");
}

void setFrame(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(5, 5);
    const platform::CGRect frame = arguments.rect(1);
    requireDone(runningFinder(player).setFrame(player.finderWindow(arguments, 0), frame), "the window doesn't move");
}

void setFullScreen(ScriptPlayer& player, const Arguments& arguments) {
    static constexpr Choice<bool> choices[] = {{"on", true}, {"off", false}};
    arguments.requireCount(2, 2);
    const bool fullScreen = choose(choices, arguments, 1);
    requireDone(runningFinder(player).setFullScreen(player.finderWindow(arguments, 0), fullScreen),
                "the window doesn't do that");
}

void setSpace(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(2, 2);
    const std::int64_t space = arguments.integer(1);
    if (space < 1 || space > 100) badCommand("no space " + arguments.text(1));
    requireDone(runningFinder(player).setSpace(player.finderWindow(arguments, 0), static_cast<int>(space)),
                "the window doesn't do that");
}

void setScriptLatency(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    player.machine().faults.scriptLatency = platform::seconds(arguments.seconds(0));
}

std::optional<std::string> textOrOff(const Arguments& arguments) {
    if (arguments.count() == 1 && arguments.is(0, "off")) return std::nullopt;
    return arguments.rest(0);
}

void setScriptError(ScriptPlayer& player, const Arguments& arguments) {
    player.machine().faults.scriptError = textOrOff(arguments);
}

void setScriptAnswer(ScriptPlayer& player, const Arguments& arguments) {
    player.machine().faults.scriptAnswer = textOrOff(arguments);
}

constexpr Choice<desk::ReadFault> readFaults[] = {
    {"missing", desk::ReadFault::missing}, {"wrong-type", desk::ReadFault::wrongType}, {"off", desk::ReadFault::none}};

std::int64_t optionalWindow(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(2, 3);
    return arguments.count() == 3 ? player.finderWindow(arguments, 2) : 0;
}

void setAccessibilityFault(ScriptPlayer& player, const Arguments& arguments) {
    const std::int64_t window = optionalWindow(player, arguments);
    player.machine().faults.setAccessibilityFault(arguments.text(0), choose(readFaults, arguments, 1), window);
}

void setWindowListFault(ScriptPlayer& player, const Arguments& arguments) {
    const std::int64_t window = optionalWindow(player, arguments);
    player.machine().faults.setWindowListFault(arguments.text(0), choose(readFaults, arguments, 1), window);
}

void setNotifications(ScriptPlayer& player, const Arguments& arguments) {
    static constexpr Choice<desk::NotificationFault> choices[] = {{"deliver", desk::NotificationFault::deliver},
                                                                  {"drop", desk::NotificationFault::drop},
                                                                  {"double", desk::NotificationFault::doubled},
                                                                  {"late", desk::NotificationFault::late}};
    const desk::NotificationFault fault = choose(choices, arguments, 0);
    const std::size_t words = fault == desk::NotificationFault::late ? 2 : 1;
    arguments.requireCount(words, words);
    auto& faults = player.machine().faults;
    faults.notificationDelay = words == 2 ? platform::seconds(arguments.seconds(1)) : platform::Duration(0);
    faults.notifications = fault;
}

void quit(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(0, 0);
    runningFinder(player).quit();
}

void launch(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(0, 0);
    player.machine().finder.launch();
}

const std::vector<Command>& finderVerbs() {
    static const std::vector<Command> table{{"open", open},
                                            {"open-virtual", openVirtual},
                                            {"close", onWindow<&desk::Finder::close>},
                                            {"minimize", onWindow<&desk::Finder::minimize>},
                                            {"restore", onWindow<&desk::Finder::restore>},
                                            {"raise", onWindow<&desk::Finder::raise>},
                                            {"go", go},
                                            {"select", select},
                                            {"frame", setFrame},
                                            {"full-screen", setFullScreen},
                                            {"space", setSpace},
                                            {"info-panel", openInfoPanel},
                                            {"script-latency", setScriptLatency},
                                            {"script-error", setScriptError},
                                            {"script-answer", setScriptAnswer},
                                            {"ax-fault", setAccessibilityFault},
                                            {"list-fault", setWindowListFault},
                                            {"notifications", setNotifications},
                                            {"quit", quit},
                                            {"launch", launch}};
    return table;
}

void runFinderVerb(ScriptPlayer& player, const Arguments& arguments) {
    if (!runCommand(finderVerbs(), arguments.text(0), player, arguments.after(1)))
        badCommand("unknown command: finder " + arguments.text(0));
}

}  // namespace

const std::vector<Command>& finderCommands() {
    static const std::vector<Command> table{{"finder", runFinderVerb}};
    return table;
}

}  // namespace play
