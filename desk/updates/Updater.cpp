#include "desk/updates/Updater.h"

#include <utility>

#include "desk/processes/Journal.h"
#include "desk/processes/LaunchedApplication.h"

namespace desk {

void Updater::startUpdater() {
    if (started || application.isDead()) return;
    started = true;
    journal.note(application.processIdentifier(), "updater start");
    canCheckChanged(true);
}

void Updater::checkForUpdates() {
    journal.note(application.processIdentifier(), "updater check");
}

platform::Token Updater::observeCanCheckForUpdates(unsigned options, std::function<void(bool)> handler) {
    if ((options & platform::NSKeyValueObservingOptionInitial) != 0) handler(canCheckForUpdates());
    return canCheckChanged.subscribe(std::move(handler));
}

}  // namespace desk
