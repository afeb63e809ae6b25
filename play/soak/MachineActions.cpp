// What happens around Finder: displays, spaces, other applications, permissions, folders that come and go, Finder itself.
#include "desk/Machine.h"
#include "play/Session.h"
#include "play/soak/Actions.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

constexpr const char* screenSets[][3] = {{"screen 0 0 1440 900", "", ""},
                                         {"screen 0 0 1440 900 dock 70", "screen 1440 -180 1920 1080", ""},
                                         {"screen 0 0 1920 1080 fps 120", "screen -1280 120 1280 800", ""},
                                         {"screen 0 0 1440 900", "screen 0 900 1440 900", "screen 0 -900 1440 900"},
                                         {"screen 100 50 1440 900", "", ""},
                                         {"screen 0 0 1024 640 menubar 0", "", ""}};
constexpr const char* otherApplications[] = {"com.example.Notes", "com.example.Paint", "com.example.Mail"};

Lines setScreens(const Chooser& choose) {
    Lines lines{"screens none"};
    if (choose.random.oneIn(8)) return lines;
    for (const char* line : choose.random.pick(screenSets))
        if (*line != '\0') lines.emplace_back(line);
    return lines;
}

Lines switchSpace(const Chooser& choose) {
    return {"space " + numberWord(choose.random.between(1, 3))};
}

Lines appearance(const Chooser& choose) {
    return {choose.random.oneIn(2) ? "appearance dark" : "appearance light"};
}

std::vector<std::string> runningApplications(const Chooser& choose) {
    std::vector<std::string> identifiers;
    for (const auto& process : choose.session.machine.processes.running())
        if (process.bundleIdentifier && *process.bundleIdentifier != applicationIdentifier)
            identifiers.push_back(*process.bundleIdentifier);
    return identifiers;
}

Lines startProcess(const Chooser& choose) {
    const std::string identifier = choose.random.pick(otherApplications);
    if (choose.session.machine.processes.findByBundleIdentifier(identifier) != nullptr) return {};
    return {"process " + identifier};
}

Lines activate(const Chooser& choose) {
    if (choose.finderRuns() && choose.random.oneIn(2)) return {"activate com.apple.finder"};
    const auto identifiers = runningApplications(choose);
    if (identifiers.empty()) return {};
    return {"activate " + textWord(choose.random.pick(identifiers))};
}

Lines makeFolder(const Chooser& choose) {
    return {"folder " + textWord(choose.ownFolder())};
}

Lines makeFile(const Chooser& choose) {
    return {"file " + textWord(choose.folder() + "/Story " + numberWord(choose.random.between(1, 4)) + ".txt")};
}

Lines removeEntry(const Chooser& choose) {
    const std::string path = choose.random.oneIn(8) ? "/Users/ana/Stories" : choose.ownFolder();
    if (!choose.session.machine.disk.exists(path)) return {};
    return {"remove " + textWord(path)};
}

Lines makeUnreadable(const Chooser& choose) {
    return {"unreadable " + textWord(choose.folder())};
}

Lines quitFinder(const Chooser& choose) {
    return choose.finderRuns() ? Lines{"finder quit"} : Lines{"finder launch"};
}

Lines permission(const Chooser& choose) {
    static constexpr const char* lines[] = {"permission accessibility missing", "permission accessibility granted",
                                            "permission automation denied", "permission automation allowed",
                                            "permission automation ask"};
    return {choose.random.pick(lines)};
}

// Seldom a long one.
Lines wait(const Chooser& choose) {
    static constexpr const char* lines[] = {"wait 0.004", "wait 0.01", "wait 0.015", "wait 0.02", "wait 0.05",
                                            "wait 0.1",   "wait 0.2",  "wait 0.25",  "wait 0.5",  "wait 1"};
    return {choose.random.oneIn(20) ? "wait 3.1" : choose.random.pick(lines)};
}

}  // namespace

const std::vector<Action>& machineActions() {
    static const std::vector<Action> table{
        {"screens", 0.7, setScreens},   {"space", 1.5, switchSpace},     {"appearance", 0.3, appearance},
        {"process", 0.5, startProcess}, {"activate", 4, activate},       {"folder", 1.5, makeFolder},
        {"file", 0.3, makeFile},        {"remove", 0.7, removeEntry},    {"unreadable", 0.1, makeUnreadable},
        {"finder", 0.4, quitFinder},    {"permission", 0.5, permission}, {"wait", 8, wait}};
    return table;
}

Lines openingLines(const Chooser& choose) {
    Lines lines;
    if (choose.random.oneIn(2))
        for (const char* line : choose.random.pick(screenSets))
            if (*line != '\0') lines.emplace_back(line);
    if (choose.random.oneIn(2)) lines.push_back("process " + std::string(choose.random.pick(otherApplications)));
    for (int windows = choose.random.between(0, 3); windows > 0; --windows)
        lines.push_back(joinWords({"finder open", textWord(choose.folder()), choose.frame()}));
    const bool isUntrusted = choose.random.oneIn(8);
    if (isUntrusted) lines.emplace_back("permission accessibility missing");
    if (choose.random.oneIn(8)) lines.emplace_back("finder quit");
    lines.emplace_back("launch");
    // The guide, which would keep the keyboard.
    if (isUntrusted) lines.emplace_back("key cmd+w");
    return lines;
}

}  // namespace play
