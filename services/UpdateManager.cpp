#include "services/UpdateManager.h"

namespace brindle {

UpdateManager::UpdateManager(platform::Platform& thePlatform) : platform(thePlatform) {
    platform::SPUUpdater& updater = updaterController().updater();
    canCheckForUpdates.setIfChanged(updater.canCheckForUpdates());
    auto receive = lifetime.guard([this](bool canCheck) { canCheckForUpdates.setIfChanged(canCheck); });
    cancellable = updater.observeCanCheckForUpdates(
        platform::NSKeyValueObservingOptionInitial | platform::NSKeyValueObservingOptionNew,
        [&dispatch = platform.dispatch, receive](bool canCheck) {
            dispatch.mainAsync([receive, canCheck]() mutable { receive(canCheck); });
        });
}

platform::SPUStandardUpdaterController& UpdateManager::updaterController() {
    if (!controller) controller = platform.updaters.makeStandardUpdaterController(false, this, nullptr);
    return *controller;
}

void UpdateManager::updaterDidFindValidUpdate(platform::SPUUpdater& /*updater*/, const platform::SUAppcastItem& item) {
    availableVersion.setIfChanged(item.displayVersionString);
}

void UpdateManager::updaterDidNotFindUpdate(platform::SPUUpdater& /*updater*/) {
    availableVersion.setIfChanged(std::nullopt);
}

void UpdateManager::updaterWillRelaunchApplication(platform::SPUUpdater& /*updater*/) {
    if (onWillRelaunchApplication) onWillRelaunchApplication();
}

}  // namespace brindle
