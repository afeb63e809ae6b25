// The updater framework: one standard controller, its updater, and what it tells its delegate. It fetches the feed that the Info dictionary names, shows its own dialogs, and replaces and
// relaunches the application; none of that can be set here. Main thread only.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/Token.h"

namespace platform {

// What is on offer.
struct SUAppcastItem {
    std::string displayVersionString;  // for people; never empty
};

inline constexpr unsigned NSKeyValueObservingOptionNew = 1;
inline constexpr unsigned NSKeyValueObservingOptionInitial = 4;

class SPUUpdater {
public:
    virtual ~SPUUpdater() = default;
    // False until the updater has been started, and while it fetches a feed or an update. An open dialog doesn't count.
    virtual bool canCheckForUpdates() const = 0;
    // Key-value observing of it: the handler is called at each change, inside it. With NSKeyValueObservingOptionInitial it is called once before this returns, too.
    virtual Token observeCanCheckForUpdates(unsigned options, std::function<void(bool)> handler) = 0;
};

// A failed check calls neither of the first two.
class SPUUpdaterDelegate {
public:
    virtual ~SPUUpdaterDelegate() = default;
    virtual void updaterDidFindValidUpdate(SPUUpdater& updater, const SUAppcastItem& item) = 0;
    virtual void updaterDidNotFindUpdate(SPUUpdater& updater) = 0;
    // The new version is at hand, and the application is about to be asked to terminate.
    virtual void updaterWillRelaunchApplication(SPUUpdater& updater) = 0;
};

class SPUStandardUserDriverDelegate {
public:
    virtual ~SPUStandardUserDriverDelegate() = default;
};

class SPUStandardUpdaterController {
public:
    // Nothing more is told to the delegate, and its dialog goes.
    virtual ~SPUStandardUpdaterController() = default;
    // From now on it checks by itself as well, as often as its configuration says. A second call does nothing.
    virtual void startUpdater() = 0;
    virtual SPUUpdater& updater() = 0;
    // By the user's wish: its dialog tells what came of it. A dialog that is open comes forward instead. Waits for nothing; does nothing while canCheckForUpdates is false.
    virtual void checkForUpdates() = 0;
};

class UpdaterFramework {
public:
    virtual ~UpdaterFramework() = default;
    // initWithStartingUpdater:updaterDelegate:userDriverDelegate:. The delegates aren't kept alive and outlive the controller; either may be null.
    virtual std::unique_ptr<SPUStandardUpdaterController> makeStandardUpdaterController(
        bool startingUpdater, SPUUpdaterDelegate* updaterDelegate,
        SPUStandardUserDriverDelegate* userDriverDelegate) = 0;
};

}  // namespace platform
