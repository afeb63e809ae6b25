// The desk in real time, in a window of the host, with a person at it. It sets the scene, runs until the window is closed, and can be driven by the lines of a
// desk script as well, for tests and measurements.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "desk/live/DeskWindow.h"
#include "desk/live/EndOnSignals.h"
#include "desk/live/EventLoop.h"
#include "desk/live/HostDesktop.h"
#include "play/Session.h"
#include "play/live/ArrivingLines.h"
#include "play/live/Inspector.h"
#include "play/live/LiveCounters.h"

namespace play {

class ScriptPlayer;

struct LiveOptions {
    int screens = 1;
    bool isFirstLaunch = false;
    bool isBare = false;  // as fresh as a script's, for whoever sets the scene himself; nothing of the host's is shared
    bool takesScript = false;  // bare, and driven by standard input, with whose end the desk ends
};

class LiveDesk {
public:
    // With a GuiApplication. Shows the window.
    explicit LiveDesk(const LiveOptions& options);
    ~LiveDesk();

    // Answers the exit code.
    int run();

    // The loop outlives the session, whose queues wake it up to their end.
    desk::EventLoop loop;
    desk::EndOnSignals signals{loop};
    Session session;
    desk::DeskWindow window;
    LiveCounters counters;

private:
    void setScene();
    void haveRested();
    bool takeOwnKey(int hostKey);

    std::unique_ptr<desk::HostDesktop> host;  // none for a script, which never touches the host's
    Inspector inspector;
    ArrivingLines* script = nullptr;  // the player's
    std::unique_ptr<ScriptPlayer> player;
    std::uint64_t seenRounds = 0;
};

}  // namespace play
