// The application object towards the machine: policy, activation, its event queue, its end.
#pragma once

#include "platform/Application.h"

namespace desk {

class Activation;
class LaunchedApplication;
class Processes;
class WallClock;

class NSApplicationPort final : public platform::NSApplication {
public:
    NSApplicationPort(const WallClock& theClock, Processes& theProcesses, Activation& theActivation,
                      LaunchedApplication& theApplication)
        : clock(theClock), processes(theProcesses), activation(theActivation), application(theApplication) {}

    void setActivationPolicy(platform::NSApplicationActivationPolicy policy) override;
    void activate(bool ignoringOtherApps) override;
    void terminate() override;
    std::optional<platform::NSEvent> nextEventMatchingMask(platform::NSEventMask mask, platform::Date untilDate,
                                                           platform::NSRunLoopMode mode, bool dequeue) override;

private:
    const WallClock& clock;
    Processes& processes;
    Activation& activation;
    LaunchedApplication& application;
};

}  // namespace desk
