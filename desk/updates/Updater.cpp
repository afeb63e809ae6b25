#include "desk/updates/Updater.h"

#include <utility>

#include "desk/processes/Alerts.h"
#include "desk/processes/Journal.h"
#include "desk/processes/LaunchServices.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/updates/Appcast.h"
#include "desk/updates/Installation.h"
#include "desk/updates/UpdateFeed.h"

namespace desk {

namespace {

constexpr double secondsOfADay = 86'400;
constexpr const char* installNow = "Install and Relaunch";
constexpr const char* later = "Later";
constexpr const char* ok = "OK";
constexpr const char* checkFailed = "The check for updates failed.";

}  // namespace

Updater::Updater(const UpdaterNeighbours& theNeighbours, LaunchedApplication& theApplication,
                 platform::SPUUpdaterDelegate* theDelegate)
    : neighbours(theNeighbours), application(theApplication), delegate(theDelegate) {}

Updater::~Updater() {
    if (fetch) fetch->cancel();
    neighbours.alerts.withdraw(dialog);
}

void Updater::startUpdater() {
    if (isStarted || application.isDead()) return;
    note("updater start");
    isStarted = true;
    canCheckChanged(true);
    auto checkItself = lifetime.guard([this] { check(Asked::byNobody); });
    daily = application.loop().addTimer(platform::seconds(secondsOfADay), true, {}, checkItself);
    subscription = neighbours.feed.checkNow.subscribe([this, checkItself](std::int32_t process) {
        if (process == application.processIdentifier()) application.loop().mainAsync(checkItself);
    });
}

platform::Token Updater::observeCanCheckForUpdates(unsigned options, std::function<void(bool)> handler) {
    if ((options & platform::NSKeyValueObservingOptionInitial) != 0) handler(canCheckForUpdates());
    return canCheckChanged.subscribe(std::move(handler));
}

void Updater::checkForUpdates() {
    if (application.isDead()) return;
    note("updater check");
    if (dialog != 0)
        neighbours.alerts.bringForward(dialog);
    else
        check(Asked::byTheUser);
}

void Updater::check(Asked asked) {
    if (!canCheckForUpdates()) return;
    auto feed = neighbours.feed.fetch(textInInfo("SUFeedURL"));
    beginFetch(neighbours.feed.latency, [this, asked, feed = std::move(feed)] { received(feed, asked); });
}

void Updater::beginFetch(platform::Duration latency, platform::Block done) {
    if (fetch) fetch->cancel();
    fetch = std::make_shared<platform::DispatchWorkItem>([this, done = std::move(done)] {
        endFetch();
        done();
    });
    canCheckChanged(false);
    application.loop().mainAfter(latency, fetch);
}

// The item that is being performed is held by the loop.
void Updater::endFetch() {
    fetch.reset();
    canCheckChanged(true);
}

void Updater::received(const std::optional<std::string>& feed, Asked asked) {
    const auto items = feed ? readAppcast(*feed) : std::nullopt;
    const std::string version = textInInfo("CFBundleVersion");
    if (items && !version.empty()) {
        const AppcastItem* newest = newestAbove(*items, version);
        if (newest == nullptr)
            foundNone(asked);
        else
            found(*newest, asked);
    } else if (asked == Asked::byTheUser) {
        const char* problem = !feed    ? "The update feed can't be reached."
                              : !items ? "What the update feed answers can't be read."
                                       : "The version of the installed copy isn't known.";
        tell(checkFailed, problem, AlertStyle::warning);
    }
}

void Updater::foundNone(Asked asked) {
    if (delegate != nullptr) delegate->updaterDidNotFindUpdate(*this);
    if (asked == Asked::byTheUser)
        tell(application.bundle().name() + " is up to date.", "There is no newer version.", AlertStyle::informational);
}

void Updater::found(const AppcastItem& item, Asked asked) {
    if (delegate != nullptr) delegate->updaterDidFindValidUpdate(*this, {item.displayVersion});
    if (asked == Asked::byNobody) return;
    Alert alert;
    alert.message = application.bundle().name() + " " + item.displayVersion + " is available.";
    alert.informative = "To install it, the application quits and opens again.";
    alert.buttons = {installNow, later};
    alert.defaultButton = installNow;
    alert.cancelButton = later;
    alert.style = AlertStyle::informational;
    show(std::move(alert), [this, url = item.url](const std::string& button) {
        if (button == installNow) install(url);
    });
}

void Updater::install(const std::string& url) {
    beginFetch({}, [this, url] {
        const Installation installation(neighbours.disk, application.bundle(), application.processIdentifier());
        if (const auto problem = installation.fetch(url))
            return tell("The update failed.", *problem, AlertStyle::warning);
        note("updater relaunch");
        if (delegate != nullptr) delegate->updaterWillRelaunchApplication(*this);
        application.terminate();
        if (!application.isDead()) return installation.discard();
        neighbours.scheduler.after({}, [installation, &services = neighbours.launchServices] {
            installation.putInPlace();
            services.openApplication(installation.place());
        });
    });
}

void Updater::tell(const std::string& message, const std::string& informative, AlertStyle style) {
    Alert alert;
    alert.message = message;
    alert.informative = informative;
    alert.buttons = {ok};
    alert.defaultButton = ok;
    alert.style = style;
    show(std::move(alert), nullptr);
}

void Updater::show(Alert alert, std::function<void(const std::string& button)> answer) {
    if (application.isDead()) return;
    neighbours.alerts.withdraw(dialog);
    alert.source = "updater";
    alert.owner = application.processIdentifier();
    alert.icon = application.bundle().name();
    if (auto icon = application.platform().images.imageWithContentsOf(application.bundle().path +
                                                                      "/Contents/Resources/AppIcon.png"))
        alert.picture = std::move(*icon);
    dialog = neighbours.alerts.show(std::move(alert), [this, answer = std::move(answer)](const std::string& button) {
        dialog = 0;
        if (answer) application.loop().mainAsync(lifetime.guard([answer, button] { answer(button); }));
    });
}

void Updater::note(const char* what) {
    neighbours.journal.note(application.processIdentifier(), what);
}

// Empty when it isn't there, or is no text.
std::string Updater::textInInfo(const char* key) const {
    const platform::Value* value = platform::find(application.bundle().info, key);
    const auto* text = value == nullptr ? nullptr : value->as<std::string>();
    return text == nullptr ? std::string() : *text;
}

}  // namespace desk
