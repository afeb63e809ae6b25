// The application object towards the machine: policy, activation, its event queue, its end.
#pragma once

#include "platform/Application.h"

namespace desk {

class LaunchedApplication;
class Machine;

class NSApplicationPort final : public platform::NSApplication {
public:
    NSApplicationPort(Machine& theMachine, LaunchedApplication& theApplication)
        : machine(theMachine), application(theApplication) {}

    void setActivationPolicy(platform::NSApplicationActivationPolicy policy) override;
    void activate(bool ignoringOtherApps) override;
    void terminate() override;
    std::optional<platform::NSEvent> nextEventMatchingMask(platform::NSEventMask mask, platform::Date untilDate,
                                                           platform::NSRunLoopMode mode, bool dequeue) override;

private:
    Machine& machine;
    LaunchedApplication& application;
};

}  // namespace desk
