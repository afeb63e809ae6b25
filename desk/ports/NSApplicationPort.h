// The application object towards the machine: policy, activation, its event queue, its end.
#pragma once

#include <string>

#include "platform/Application.h"

namespace desk {

class Activation;
class Journal;
class LaunchedApplication;
class Processes;
class WallClock;

class NSApplicationPort final : public platform::NSApplication {
public:
    NSApplicationPort(const WallClock& theClock, Processes& theProcesses, Activation& theActivation,
                      Journal& theJournal, platform::ImageSystem& theImages, LaunchedApplication& theApplication)
        : clock(theClock),
          processes(theProcesses),
          activation(theActivation),
          journal(theJournal),
          images(theImages),
          application(theApplication) {}

    void setActivationPolicy(platform::NSApplicationActivationPolicy policy) override;
    void activate(bool ignoringOtherApps) override;
    platform::NSImage applicationIconImage() override;
    void terminate() override;
    std::optional<platform::NSEvent> nextEventMatchingMask(platform::NSEventMask mask, platform::Date untilDate,
                                                           platform::NSRunLoopMode mode, bool dequeue) override;

private:
    void note(std::string what);

    const WallClock& clock;
    Processes& processes;
    Activation& activation;
    Journal& journal;
    platform::ImageSystem& images;
    LaunchedApplication& application;
};

}  // namespace desk
