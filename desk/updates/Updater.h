// The updater of one application. It knows whether it may check; it doesn't check yet.
#pragma once

#include <functional>

#include "platform/Signal.h"
#include "platform/Updater.h"

namespace desk {

class Journal;
class LaunchedApplication;

class Updater final : public platform::SPUStandardUpdaterController, private platform::SPUUpdater {
public:
    Updater(Journal& theJournal, LaunchedApplication& theApplication)
        : journal(theJournal), application(theApplication) {}

    void startUpdater() override;
    platform::SPUUpdater& updater() override { return *this; }
    void checkForUpdates() override;

private:
    bool canCheckForUpdates() const override { return started; }
    platform::Token observeCanCheckForUpdates(unsigned options, std::function<void(bool)> handler) override;

    Journal& journal;
    LaunchedApplication& application;
    bool started = false;
    platform::Signal<bool> canCheckChanged;
};

}  // namespace desk
