#include "play/live/LiveDesk.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>

#include "play/ScriptPlayer.h"

namespace play {

namespace {

constexpr const char* hostHome = "/Volumes/Home";
constexpr const char* otherApplication = "com.apple.Safari";
// About what Finder takes for a list of a few windows.
constexpr double finderLatency = 0.02;

// Combinations with the Mac's Control key, which the host's keyboard has no key left for.
struct StandIn {
    int hostKey;
    const char* combination;
};
constexpr StandIn standIns[] = {{Qt::Key_F9, "ctrl+left"}, {Qt::Key_F10, "ctrl+right"}, {Qt::Key_F11, "ctrl+cmd+f"}};

}  // namespace

LiveDesk::LiveDesk(const LiveOptions& options)
    : window(session.machine, session.desktop, session.compositor, options.screens),
      counters(session),
      inspector(session, counters) {
    session.machine.useRealTime(loop);
    loop.atRest = [this] { haveRested(); };
    window.closed = [this] { loop.end(); };
    window.takeOwnKey = [this](int hostKey) { return takeOwnKey(hostKey); };
    window.onTop = [this] { return inspector.layers(); };
    window.painted = [this](const desk::DesktopFrame& frame) { counters.note(frame); };
    inspector.due = [this] { window.lookAgain(); };
    if (options.takesScript) {
        auto lines = std::make_unique<ArrivingLines>(STDIN_FILENO);
        script = lines.get();
        player = std::make_unique<ScriptPlayer>(session, "script", std::move(lines), std::cout, std::cerr);
    }
    if (options.isFirstLaunch) session.beFirstLaunch();
    window.show();
    if (!options.takesScript && !options.isBare) setScene();
}

LiveDesk::~LiveDesk() = default;

void LiveDesk::setScene() {
    desk::Machine& machine = session.machine;
    host = std::make_unique<desk::HostDesktop>(machine);
    machine.faults.scriptLatency = platform::seconds(finderLatency);
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home == '/')
        if (const auto problem = machine.disk.mount(hostHome, home)) std::cerr << "desk: " << *problem << '\n';
    machine.launchServices.startOtherProcess(otherApplication);
    machine.finder.open(machine.disk.home() + "/Documents");
    session.launch(installedCopy);
}

int LiveDesk::run() {
    desk::Machine& machine = session.machine;
    machine.settle();
    while (machine.scheduler.stepDriver()) machine.settle();
    return player ? player->exitCode() : 0;
}

void LiveDesk::haveRested() {
    if (player && (player->exitCode() != 0 || script->isOver())) loop.end();
    if (host) host->handOnClipboard();
    const std::uint64_t rounds = session.machine.scheduler.roundCount();
    if (std::exchange(seenRounds, rounds) != rounds) window.lookAgain();
}

bool LiveDesk::takeOwnKey(int hostKey) {
    if (hostKey == Qt::Key_F12) {
        inspector.toggle();
        return true;
    }
    for (const StandIn& each : standIns) {
        if (each.hostKey != hostKey) continue;
        const desk::KeyStroke stroke = desk::keyStroke(each.combination).value_or(desk::KeyStroke{});
        session.machine.input.keyDown(stroke);
        session.machine.settle();
        session.machine.input.keyUp(stroke);
        session.machine.settle();
        return true;
    }
    return false;
}

}  // namespace play
