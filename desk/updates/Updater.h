// The updater of one application: it reads the feed, tells its delegate, asks the user in dialogs of its own, and has a new version installed. It runs in turns of the application and ends
// with it; what still has to be done when the application has quit for an update is handed to the machine.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Dispatch.h"
#include "platform/Lifetime.h"
#include "platform/RunLoop.h"
#include "platform/Signal.h"
#include "platform/Updater.h"

namespace desk {

class Alerts;
class Disk;
class Journal;
class LaunchedApplication;
class LaunchServices;
class Scheduler;
class UpdateFeed;
enum class AlertStyle;
struct Alert;
struct AppcastItem;

struct UpdaterNeighbours {
    Scheduler& scheduler;
    Disk& disk;
    LaunchServices& launchServices;
    Alerts& alerts;
    Journal& journal;
    UpdateFeed& feed;
};

class Updater final : public platform::SPUStandardUpdaterController, private platform::SPUUpdater {
public:
    // The delegate may be null.
    Updater(const UpdaterNeighbours& theNeighbours, LaunchedApplication& theApplication,
            platform::SPUUpdaterDelegate* theDelegate);
    ~Updater() override;

    void startUpdater() override;
    platform::SPUUpdater& updater() override { return *this; }
    void checkForUpdates() override;

private:
    enum class Asked { byTheUser, byNobody };

    bool canCheckForUpdates() const override { return isStarted && fetch == nullptr; }
    platform::Token observeCanCheckForUpdates(unsigned options, std::function<void(bool)> handler) override;

    void check(Asked asked);
    void received(const std::optional<std::string>& feed, Asked asked);
    void found(const AppcastItem& item, Asked asked);
    void foundNone(Asked asked);
    void install(const std::string& url);
    // Nothing else is fetched meanwhile; what was under way is dropped.
    void beginFetch(platform::Duration latency, platform::Block done);
    void endFetch();

    void tell(const std::string& message, const std::string& informative, AlertStyle style);
    // Instead of the one that is up. The answer comes in a turn of the application.
    void show(Alert alert, std::function<void(const std::string& button)> answer);
    void note(const char* what);
    std::string textInInfo(const char* key) const;

    UpdaterNeighbours neighbours;
    LaunchedApplication& application;
    platform::SPUUpdaterDelegate* delegate;
    bool isStarted = false;
    std::shared_ptr<platform::DispatchWorkItem> fetch;  // of a feed or an update, while it is under way
    std::uint64_t dialog = 0;                           // 0: none is up
    platform::Signal<bool> canCheckChanged;
    std::unique_ptr<platform::Timer> daily;
    platform::Token subscription;
    platform::Lifetime lifetime;
};

}  // namespace desk
