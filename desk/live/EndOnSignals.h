// While it lives, an interrupted process (SIGINT, SIGTERM, SIGHUP) ends its event loop, and so puts its things away as a closed desk does. One at a time.
#pragma once

#include <csignal>

#include "desk/live/EventLoop.h"

namespace desk {

class EndOnSignals {
public:
    explicit EndOnSignals(EventLoop& theLoop) {
        loop = &theLoop;
        for (const int number : numbers) std::signal(number, end);
    }
    ~EndOnSignals() {
        for (const int number : numbers) std::signal(number, SIG_DFL);
        loop = nullptr;
    }
    EndOnSignals(const EndOnSignals&) = delete;
    EndOnSignals& operator=(const EndOnSignals&) = delete;

private:
    static constexpr int numbers[] = {SIGINT, SIGTERM, SIGHUP};
    static void end(int /*number*/) { loop->end(); }
    static inline EventLoop* loop = nullptr;
};

}  // namespace desk
