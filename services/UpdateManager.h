// The application's front end to the updater framework: whether a check may start, which newer version is on offer, and word of a relaunch. It checks, asks and replaces nothing itself.
// Main thread only.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Lifetime.h"
#include "platform/Platform.h"

namespace brindle {

class UpdateManager final : public platform::ObservableObject, public platform::SPUUpdaterDelegate {
public:
    explicit UpdateManager(platform::Platform& thePlatform);

    // As the updater has it, a turn later.
    platform::Published<bool, UpdateManager> canCheckForUpdates{*this, false};
    // As people read it; of the last check that found something or nothing. A failed check leaves it.
    platform::Published<std::optional<std::string>, UpdateManager> availableVersion{*this, std::nullopt};
    std::function<void()> onWillRelaunchApplication;

    // The one controller, made on first use and not started.
    platform::SPUStandardUpdaterController& updaterController();

    void updaterDidFindValidUpdate(platform::SPUUpdater& updater, const platform::SUAppcastItem& item) override;
    void updaterDidNotFindUpdate(platform::SPUUpdater& updater) override;
    void updaterWillRelaunchApplication(platform::SPUUpdater& updater) override;

private:
    platform::Platform& platform;
    std::unique_ptr<platform::SPUStandardUpdaterController> controller;
    platform::Token cancellable;
    platform::Lifetime lifetime;
};

}  // namespace brindle
