// A program with nothing of its own, for tests of the machine: whatever a test wants of an application it does through the platform, as a program would.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/kit/Desk.h"

namespace kit {

class RecordingPanel final : public platform::NSPanel {
public:
    RecordingPanel(platform::Platform& thePlatform, const platform::CGRect& frame,
                   unsigned styleMask = platform::NSWindowStyleMask::nonactivatingPanel)
        : NSPanel(thePlatform, frame, styleMask, platform::NSBackingStoreType::buffered, false) {}

    bool canBecomeKey() const override { return true; }
    void sendEvent(const platform::NSEvent& event) override {
        received.push_back(event);
        if (onEvent) onEvent(event);
        NSPanel::sendEvent(event);
    }

    std::vector<platform::NSEvent> received;
    std::function<void(const platform::NSEvent&)> onEvent;
};

class Probe final : public desk::Program, public platform::NSApplicationDelegate {
public:
    explicit Probe(platform::Platform& thePlatform) : platform(thePlatform) {}

    platform::NSApplicationDelegate& delegate() override { return *this; }
    void applicationWillFinishLaunching() override {
        platform.application.setActivationPolicy(platform::NSApplicationActivationPolicy::accessory);
        log.emplace_back("will");
    }
    void applicationDidFinishLaunching() override { log.emplace_back("did"); }
    platform::NSApplicationTerminateReply applicationShouldTerminate() override {
        return agreesToTerminate ? platform::NSApplicationTerminateReply::terminateNow
                                 : platform::NSApplicationTerminateReply::terminateCancel;
    }

    std::shared_ptr<RecordingPanel> panel(const platform::CGRect& frame) {
        auto made = std::make_shared<RecordingPanel>(platform, frame);
        made->orderFrontRegardless();
        return made;
    }
    // Logs the number of each event's type.
    void monitorGlobally(platform::NSEventMask mask) {
        tokens.push_back(platform.events.addGlobalMonitorForEventsMatchingMask(mask, [this](const auto& event) {
            log.push_back("global " + std::to_string(static_cast<int>(event.type)));
        }));
    }

    platform::Platform& platform;
    std::vector<std::string> log;
    std::vector<platform::Token> tokens;
    bool agreesToTerminate = true;
};

// Launched and settled.
inline Probe& launchProbe(Desk& desk, const std::string& bundleIdentifier = "org.example.Probe") {
    desk::LaunchedApplication& launched = desk.machine.applications.launch(
        {"/Applications/Probe.app", {{"CFBundleIdentifier", bundleIdentifier}, {"CFBundleName", "Orvane"}}},
        [](platform::Platform& platform) { return std::make_unique<Probe>(platform); });
    desk.machine.settle();
    return *static_cast<Probe*>(launched.program());
}

}  // namespace kit
