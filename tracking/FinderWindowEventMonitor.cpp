#include "tracking/FinderWindowEventMonitor.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace brindle {

using platform::AXUIElement;

namespace {

constexpr std::array<std::string_view, 2> applicationNotifications{"AXWindowCreated", "AXFocusedWindowChanged"};
constexpr std::array<std::string_view, 6> windowNotifications{
    "AXUIElementDestroyed", "AXWindowMiniaturized", "AXWindowDeminiaturized", "AXMoved", "AXResized", "AXTitleChanged"};

}  // namespace

FinderWindowEventMonitor::FinderWindowEventMonitor(platform::Platform& thePlatform,
                                                   std::function<void(const FinderWindowEvent&)> theOnEvent)
    : platform(thePlatform), reader(thePlatform.accessibility), onEvent(std::move(theOnEvent)) {}

void FinderWindowEventMonitor::start() {
    stop();
    if (!platform.accessibility.AXIsProcessTrusted()) return;
    const auto applications = platform.workspace.runningApplications();
    const auto finder = std::find_if(applications.begin(), applications.end(), [](const auto& application) {
        return application.bundleIdentifier == "com.apple.finder";
    });
    if (finder == applications.end()) return;
    auto observer = platform.accessibility.AXObserverCreate(finder->processIdentifier, &finderWindowEventCallback);
    if (!observer) return;
    const AXUIElement application = platform.accessibility.AXUIElementCreateApplication(finder->processIdentifier);
    observation.observer = std::move(observer);
    observation.applicationElement = application;
    observation.observer->addSourceToMainRunLoop();
    for (const std::string_view name : applicationNotifications)
        observation.observer->AXObserverAddNotification(application, name, this);
    synchronizeWindowNotifications();
}

void FinderWindowEventMonitor::stop() {
    if (observation.observer) {
        removeWindowNotifications(*observation.observer);
        if (observation.applicationElement) {
            for (const std::string_view name : applicationNotifications)
                observation.observer->AXObserverRemoveNotification(*observation.applicationElement, name);
        }
        observation.observer->removeSourceFromMainRunLoop();
    }
    observation = {};
}

void FinderWindowEventMonitor::synchronizeWindowNotifications() {
    if (!observation.observer || !observation.applicationElement) return;
    removeWindowNotifications(*observation.observer);
    observation.observedWindows = copyWindows(*observation.applicationElement);
    for (const AXUIElement& window : observation.observedWindows)
        for (const std::string_view name : windowNotifications)
            observation.observer->AXObserverAddNotification(window, name, this);
}

void FinderWindowEventMonitor::removeWindowNotifications(platform::AXObserver& observer) {
    for (const AXUIElement& window : observation.observedWindows)
        for (const std::string_view name : windowNotifications) observer.AXObserverRemoveNotification(window, name);
}

std::vector<AXUIElement> FinderWindowEventMonitor::copyWindows(const AXUIElement& from) const {
    auto windows = reader.copyElements("AXWindows", from);
    return windows ? std::move(*windows) : std::vector<AXUIElement>();
}

void FinderWindowEventMonitor::finderWindowEventCallback(platform::AXObserver&, const AXUIElement& element,
                                                         const std::string& notification, void* context) {
    if (context == nullptr) return;
    static_cast<FinderWindowEventMonitor*>(context)->deliver(element, notification);
}

void FinderWindowEventMonitor::deliver(const AXUIElement& element, const std::string& notification) {
    FinderWindowEvent event;
    event.notification = notification;
    event.topLeftFrame = reader.copyFrame(element);
    event.title = reader.copyString("AXTitle", element);
    event.isMain = reader.copyBool("AXMain", element).value_or(false);
    event.isFullScreen = reader.copyBool("AXFullScreen", element);
    // The subscriptions that this notification came by may be gone after onEvent; the event's copy of the name isn't.
    onEvent(event);
    if (event.notification == "AXWindowCreated" || event.notification == "AXUIElementDestroyed")
        synchronizeWindowNotifications();
}

}  // namespace brindle
