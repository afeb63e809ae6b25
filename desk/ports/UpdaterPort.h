// Makes the updaters of one application. What they do is told in desk/updates/.
#pragma once

#include <memory>

#include "desk/updates/Updater.h"

namespace desk {

class UpdaterPort final : public platform::UpdaterFramework {
public:
    UpdaterPort(const UpdaterNeighbours& theNeighbours, LaunchedApplication& theApplication)
        : neighbours(theNeighbours), application(theApplication) {}

    std::unique_ptr<platform::SPUStandardUpdaterController> makeStandardUpdaterController(
        bool startingUpdater, platform::SPUUpdaterDelegate* updaterDelegate,
        platform::SPUStandardUserDriverDelegate* /*userDriverDelegate*/) override {
        auto made = std::make_unique<Updater>(neighbours, application, updaterDelegate);
        if (startingUpdater) made->startUpdater();
        return made;
    }

private:
    UpdaterNeighbours neighbours;
    LaunchedApplication& application;
};

}  // namespace desk
