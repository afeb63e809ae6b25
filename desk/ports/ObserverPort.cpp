#include "desk/ports/ObserverPort.h"

#include <algorithm>
#include <utility>

#include "desk/finder/Finder.h"
#include "desk/finder/FinderAccessibility.h"
#include "desk/processes/Permissions.h"
#include "desk/time/ApplicationLoop.h"

namespace desk {

using platform::AXError;
using platform::AXUIElement;

ObserverPort::ObserverPort(Finder& theFinder, Permissions& thePermissions, ApplicationLoop& theLoop,
                           std::int32_t theProcessIdentifier, platform::AXObserverCallback theCallback,
                           std::shared_ptr<std::size_t> theCount)
    : permissions(thePermissions),
      loop(theLoop),
      processIdentifier(theProcessIdentifier),
      callback(theCallback),
      count(std::move(theCount)),
      listener(
          theFinder.accessibility().told.subscribe([this](const AXUIElement& element, const std::string& notification) {
              if (match(element, notification) == nullptr) return;
              loop.mainAsync(lifetime.guard([this, element, notification] { deliver(element, notification); }));
          })) {}

ObserverPort::~ObserverPort() {
    *count -= subscriptions.size();
}

AXError ObserverPort::AXObserverAddNotification(const AXUIElement& element, std::string_view notification,
                                                void* context) {
    if (!permissions.accessibility) return AXError::apiDisabled;
    if (element.processIdentifier != processIdentifier) return AXError::invalidUIElement;
    const bool isRegistered =
        std::any_of(subscriptions.begin(), subscriptions.end(), [&](const Subscription& subscription) {
            return subscription.element == element && subscription.notification == notification;
        });
    if (isRegistered) return AXError::failure;
    subscriptions.push_back({element, std::string(notification), context});
    ++*count;
    return AXError::success;
}

AXError ObserverPort::AXObserverRemoveNotification(const AXUIElement& element, std::string_view notification) {
    const std::size_t removed = std::erase_if(subscriptions, [&](const Subscription& subscription) {
        return subscription.element == element && subscription.notification == notification;
    });
    *count -= removed;
    return removed > 0 ? AXError::success : AXError::failure;
}

const ObserverPort::Subscription* ObserverPort::match(const AXUIElement& element,
                                                      const std::string& notification) const {
    if (!isOnRunLoop || element.processIdentifier != processIdentifier) return nullptr;
    const auto found = std::find_if(subscriptions.begin(), subscriptions.end(), [&](const Subscription& subscription) {
        const bool isOfElement = subscription.element == element || subscription.element.identity == 0;
        return isOfElement && subscription.notification == notification;
    });
    return found == subscriptions.end() ? nullptr : &*found;
}

void ObserverPort::deliver(const AXUIElement& element, const std::string& notification) {
    const Subscription* subscription = match(element, notification);
    if (subscription == nullptr || !permissions.accessibility) return;
    callback(*this, element, notification, subscription->context);
}

}  // namespace desk
