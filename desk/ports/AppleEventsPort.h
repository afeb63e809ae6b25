// AppleScript as one application sends it; the scripts of one that has ended answer an error and reach nobody.
#pragma once

#include "platform/AppleEvents.h"

namespace desk {

class LaunchedApplication;
class Machine;

class AppleEventsPort final : public platform::AppleEvents {
public:
    AppleEventsPort(Machine& theMachine, LaunchedApplication& theApplication)
        : machine(theMachine), application(theApplication) {}
    std::unique_ptr<platform::NSAppleScript> makeAppleScript(const std::string& source) override;

private:
    Machine& machine;
    LaunchedApplication& application;
};

}  // namespace desk
