// What the system sees, on a plate in a corner of the desktop: published windows, tracking, the last scripts, what happened in the last second, how far the
// bars stand from their windows. Off until it is asked for.
#pragma once

#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "desk/display/Layer.h"

namespace play {

class LiveCounters;
class Session;

class Inspector {
public:
    Inspector(Session& theSession, LiveCounters& theCounters);

    void toggle();
    // None while it is off.
    std::vector<desk::Layer> layers();

    // While it is on, some times a second: its figures are to be looked at anew.
    std::function<void()> due;

private:
    std::vector<std::string> lines();

    Session& session;
    LiveCounters& counters;
    QTimer beat;
};

}  // namespace play
