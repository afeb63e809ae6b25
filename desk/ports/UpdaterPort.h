// Makes the updaters of one application. What they do is told in desk/updates/.
#pragma once

#include <memory>

#include "desk/updates/Updater.h"

namespace desk {

class UpdaterPort final : public platform::UpdaterFramework {
public:
    UpdaterPort(Journal& theJournal, LaunchedApplication& theApplication)
        : journal(theJournal), application(theApplication) {}

    std::unique_ptr<platform::SPUStandardUpdaterController> makeStandardUpdaterController(
        bool startingUpdater, platform::SPUUpdaterDelegate* /*updaterDelegate*/,
        platform::SPUStandardUserDriverDelegate* /*userDriverDelegate*/) override {
        auto made = std::make_unique<Updater>(journal, application);
        if (startingUpdater) made->startUpdater();
        return made;
    }

private:
    Journal& journal;
    LaunchedApplication& application;
};

}  // namespace desk
