#include "play/soak/Healing.h"

#include <algorithm>
#include <vector>

#include "desk/Machine.h"
#include "play/Session.h"
#include "play/soak/Actions.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

using Line = std::optional<std::string>;
using desk::Machine;

// Prompts and menus need a screen to be answered on.
Line giveScreen(const Machine& machine) {
    if (!machine.displays.options().empty()) return std::nullopt;
    return "screen 0 0 1440 900";
}

Line answerPrompt(const Machine& machine) {
    if (machine.alerts.shown() == nullptr) return std::nullopt;
    return "click label OK";
}

Line releaseMouse(const Machine& machine) {
    if (!machine.pointer.isPressed()) return std::nullopt;
    const platform::CGPoint at = machine.pointer.location;
    const bool isLeft = machine.pointer.isPressed(desk::MouseButton::left);
    return "mouse up " + numberWord(at.x) + ' ' + numberWord(at.y) + (isLeft ? "" : " right");
}

Line closeMenu(const Machine& machine) {
    if (machine.menus.menu() == nullptr) return std::nullopt;
    return "key escape";
}

Line startFinder(const Machine& machine) {
    if (machine.finder.isRunning()) return std::nullopt;
    return "finder launch";
}

Line grantPermissions(const Machine& machine) {
    if (!machine.permissions.accessibility) return "permission accessibility granted";
    if (machine.permissions.automation != desk::AutomationPermission::allowed) return "permission automation allowed";
    return std::nullopt;
}

Line mendScripts(const Machine& machine) {
    const desk::Faults& faults = machine.faults;
    if (faults.scriptLatency.count() != 0) return "finder script-latency 0";
    if (faults.scriptError) return "finder script-error off";
    if (faults.scriptAnswer) return "finder script-answer off";
    return std::nullopt;
}

Line mendNotifications(const Machine& machine) {
    if (machine.faults.notifications == desk::NotificationFault::deliver) return std::nullopt;
    return "finder notifications deliver";
}

using FaultOf = desk::ReadFault (desk::Faults::*)(std::string_view name, std::int64_t window) const;

Line mendReads(const Machine& machine, const std::vector<std::string>& names, FaultOf faultOf, const char* command) {
    for (const std::string& name : names) {
        if ((machine.faults.*faultOf)(name, 0) != desk::ReadFault::none) return joinWords({command, name, "off"});
        for (const auto* window : machine.finder.windows())
            if ((machine.faults.*faultOf)(name, window->number) != desk::ReadFault::none)
                return joinWords({command, name, "off", numberWord(window->number)});
    }
    return std::nullopt;
}

Line mendAccessibility(const Machine& machine) {
    return mendReads(machine, faultyAttributes(), &desk::Faults::accessibilityFault, "finder ax-fault");
}

Line mendWindowList(const Machine& machine) {
    return mendReads(machine, faultyKeys(), &desk::Faults::windowListFault, "finder list-fault");
}

// Where scripts are answered with these between the fields, names that hold them spoil their window's record.
bool dividesRecords(const std::string& path) {
    return path.find_first_of("\x1e\x1f") != std::string::npos;
}

Line leaveDividers(const Machine& machine) {
    for (const auto* window : machine.finder.windows()) {
        if (window->target && dividesRecords(*window->target))
            return joinWords({"finder go", numberWord(window->number), "/Users/ana"});
        if (std::any_of(window->selection.begin(), window->selection.end(), dividesRecords))
            return "finder select " + numberWord(window->number);
    }
    return std::nullopt;
}

constexpr Line (*menders[])(const Machine&) = {giveScreen,        answerPrompt,     releaseMouse, closeMenu,
                                               startFinder,       grantPermissions, mendScripts,  mendNotifications,
                                               mendAccessibility, mendWindowList,   leaveDividers};

constexpr platform::Duration twoLongPolls = std::chrono::milliseconds(6500);

}  // namespace

std::optional<std::string> healingLine(const Session& session) {
    for (const auto mender : menders)
        if (auto line = mender(session.machine)) return line;
    return std::nullopt;
}

std::deque<std::string> clearingLines(const Session& session) {
    std::deque<std::string> lines{"finder open /Users/ana"};
    for (const auto* window : session.machine.finder.windows())
        lines.push_back("finder close " + numberWord(window->number));
    lines.emplace_back("finder close front");
    constexpr const char* systemSettings = "com.apple.systempreferences";
    if (session.machine.processes.findByBundleIdentifier(systemSettings) != nullptr)
        lines.push_back(joinWords({"terminate", systemSettings}));
    if (session.orvane() == nullptr) return lines;
    // Wherever a window is, the menu brings it to the front with the keyboard; a display with a menu bar is there for it.
    lines.insert(lines.end(), {"screens none", "screen 0 0 1440 900"});
    for (const char* row : {"\"About Orvane\"", "Settings…", "Permission…"})
        lines.insert(lines.end(), {"click status-item", std::string("click item ") + row, "key cmd+w"});
    return lines;
}

std::string restLine(platform::Duration longestDelay) {
    return "wait " + numberWord(platform::inSeconds(twoLongPolls + longestDelay));
}

}  // namespace play
