#include <cmath>
#include <string>

#include <QDateTime>

#include "play/Commands.h"
#include "play/ScriptPlayer.h"

namespace play {

namespace {

void requireSuccess(const std::optional<std::string>& problem) {
    if (problem) badCommand(*problem);
}

void useDisk(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    player.requireBeforeLaunch();
    requireSuccess(player.machine().disk.useAsStartupVolume(arguments.text(0)));
}

void mountFolder(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(2, 2);
    requireSuccess(player.machine().disk.mount(arguments.path(0), arguments.text(1)));
}

void makeFolder(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    if (!player.machine().disk.makeFolder(arguments.path(0)))
        badCommand("the folder can't be made: " + arguments.path(0));
}

void makeFile(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 100);
    const std::string contents = arguments.count() > 1 ? arguments.rest(1) : std::string();
    if (!player.machine().disk.makeFile(arguments.path(0), contents))
        badCommand("the file can't be made: " + arguments.path(0));
}

void removeEntry(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    player.requirePath(arguments.path(0));
    if (!player.machine().disk.remove(arguments.path(0))) badCommand("it can't be removed: " + arguments.path(0));
}

void copyEntry(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(2, 2);
    player.requirePath(arguments.path(0));
    if (!player.machine().disk.copy(arguments.path(0), arguments.path(1)))
        badCommand("it can't be copied there: " + arguments.path(1));
}

void makeUnreadable(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    player.requirePath(arguments.path(0));
    player.machine().disk.setUnreadable(arguments.path(0));
}

void addScreen(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(4, 10);
    desk::DisplayOptions options;
    options.frame = arguments.rect(0);
    for (std::size_t i = 4; i < arguments.count(); i += 2) {
        if (arguments.is(i, "fps")) {
            options.framesPerSecond = static_cast<int>(arguments.integer(i + 1));
            if (options.framesPerSecond < 1 || options.framesPerSecond > 1000)
                badCommand("no rate: " + arguments.text(i + 1));
        } else if (arguments.is(i, "menubar")) {
            options.menuBar = arguments.number(i + 1);
        } else if (arguments.is(i, "dock")) {
            options.dock = arguments.number(i + 1);
        } else {
            badCommand("unknown word: " + arguments.text(i));
        }
    }
    const double cut = options.menuBar + options.dock;
    if (options.menuBar < 0 || options.dock < 0 || cut > options.frame.height())
        badCommand("menu bar and Dock don't fit the screen");
    player.machine().displays.add(options);
}

void removeScreens(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    if (!arguments.is(0, "none")) badCommand("unknown word: " + arguments.text(0));
    player.machine().displays.removeAll();
}

void setAppearance(ScriptPlayer& player, const Arguments& arguments) {
    static constexpr Choice<platform::ColorScheme> schemes[] = {{"light", platform::ColorScheme::light},
                                                                {"dark", platform::ColorScheme::dark}};
    arguments.requireCount(1, 1);
    player.machine().appearance.colorScheme.setIfChanged(choose(schemes, arguments, 0));
}

void setAutomationCode(desk::Faults& faults, const Arguments& arguments) {
    faults.automationCode.reset();
    if (arguments.is(2, "off")) return;
    const std::int64_t code = arguments.integer(2);
    if (code != static_cast<std::int32_t>(code)) badCommand("no code of 32 bits: " + arguments.text(2));
    faults.automationCode = static_cast<std::int32_t>(code);
}

void setAutomationLatency(desk::Faults& faults, const Arguments& arguments) {
    faults.automationLatency = platform::seconds(arguments.seconds(2));
}

void setAutomationFault(ScriptPlayer& player, const Arguments& arguments) {
    static constexpr Choice<void (*)(desk::Faults&, const Arguments&)> faults[] = {{"code", setAutomationCode},
                                                                                   {"latency", setAutomationLatency}};
    if (!arguments.is(0, "automation")) badCommand("unknown permission: " + arguments.text(0));
    choose(faults, arguments, 1)(player.machine().faults, arguments);
}

void setUrls(ScriptPlayer& player, const Arguments& arguments) {
    static constexpr Choice<bool> outcomes[] = {{"work", false}, {"fail", true}};
    arguments.requireCount(1, 1);
    player.machine().faults.urlsFail = choose(outcomes, arguments, 0);
}

void setPermission(ScriptPlayer& player, const Arguments& arguments) {
    static constexpr Choice<bool> trust[] = {{"granted", true}, {"missing", false}};
    static constexpr Choice<desk::AutomationPermission> automation[] = {
        {"allowed", desk::AutomationPermission::allowed},
        {"denied", desk::AutomationPermission::denied},
        {"ask", desk::AutomationPermission::ask}};
    if (arguments.count() == 3) return setAutomationFault(player, arguments);
    arguments.requireCount(2, 2);
    auto& permissions = player.machine().permissions;
    if (arguments.is(0, "accessibility")) {
        permissions.setAccessibility(choose(trust, arguments, 1));
    } else if (arguments.is(0, "automation")) {
        permissions.setAutomation(choose(automation, arguments, 1));
    } else {
        badCommand("unknown permission: " + arguments.text(0));
    }
}

platform::Date dateOf(const Arguments& arguments) {
    QDateTime read = QDateTime::fromString(QString::fromStdString(arguments.rest(0)), "yyyy-MM-dd HH:mm:ss");
    read.setTimeSpec(Qt::UTC);
    constexpr qint64 startOf2100 = 4'102'444'800;
    const qint64 seconds = read.isValid() ? read.toSecsSinceEpoch() : -1;
    if (seconds < 0 || seconds >= startOf2100) badCommand("no date and time from 1970 to 2099: " + arguments.rest(0));
    return {std::chrono::seconds(seconds)};
}

void setClock(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(2, 2);
    auto& clock = player.machine().clock;
    if (!arguments.is(0, "by")) return clock.set(dateOf(arguments));
    constexpr double mostSeconds = 1e9;
    if (std::fabs(arguments.number(1)) > mostSeconds) badCommand("that is too far: " + arguments.text(1));
    clock.set(clock.now() + platform::seconds(arguments.number(1)));
}

void setZone(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    if (!player.machine().calendar.setZone(arguments.text(0))) badCommand("no time zone: " + arguments.text(0));
}

void setCalendar(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    if (!player.machine().calendar.setCalendar(arguments.text(0))) badCommand("no calendar: " + arguments.text(0));
}

}  // namespace

const std::vector<Command>& machineCommands() {
    static const std::vector<Command> table{{"disk", useDisk},
                                            {"mount", mountFolder},
                                            {"folder", makeFolder},
                                            {"file", makeFile},
                                            {"remove", removeEntry},
                                            {"copy", copyEntry},
                                            {"unreadable", makeUnreadable},
                                            {"screen", addScreen},
                                            {"screens", removeScreens},
                                            {"appearance", setAppearance},
                                            {"permission", setPermission},
                                            {"urls", setUrls},
                                            {"clock", setClock},
                                            {"zone", setZone},
                                            {"calendar", setCalendar}};
    return table;
}

}  // namespace play
