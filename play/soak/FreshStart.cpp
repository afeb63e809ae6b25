#include "play/soak/FreshStart.h"

#include <memory>

#include "play/Session.h"
#include "tracking/FinderObserver.h"

namespace play {

namespace {

constexpr const char* freshIdentifier = "com.example.FreshStart";

// As the application delegate does it, without an overlay and without minding other instances.
class FreshObserver final : public desk::Program, private platform::NSApplicationDelegate {
public:
    explicit FreshObserver(platform::Platform& thePlatform)
        : platform(thePlatform),
          observer(std::make_shared<brindle::FinderObserver>(
              thePlatform, std::make_shared<brindle::AccessibilityManager>(thePlatform),
              std::make_shared<brindle::FinderWindowTracker>(thePlatform),
              std::make_shared<brindle::FinderPathProvider>(thePlatform))) {}

    platform::NSApplicationDelegate& delegate() override { return *this; }
    const std::vector<brindle::FinderWindowState>& published() const { return observer->windows.get(); }

private:
    void applicationWillFinishLaunching() override {
        platform.application.setActivationPolicy(platform::NSApplicationActivationPolicy::accessory);
    }
    void applicationDidFinishLaunching() override { observer->start(); }
    platform::NSApplicationTerminateReply applicationShouldTerminate() override {
        return platform::NSApplicationTerminateReply::terminateNow;
    }

    platform::Platform& platform;
    std::shared_ptr<brindle::FinderObserver> observer;
};

}  // namespace

std::vector<brindle::FinderWindowState> publishedByFreshStart(Session& session) {
    desk::Bundle bundle{installedCopy, {{"CFBundleIdentifier", freshIdentifier}, {"CFBundleName", "Fresh Start"}}};
    desk::Machine& machine = session.machine;
    desk::LaunchedApplication& copy = machine.applications.launch(
        std::move(bundle), [](platform::Platform& platform) { return std::make_unique<FreshObserver>(platform); });
    machine.settle();
    auto published = static_cast<FreshObserver*>(copy.program())->published();
    copy.terminate();
    machine.settle();
    return published;
}

}  // namespace play
