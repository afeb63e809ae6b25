// One AXObserver on Finder. A subscription on the application element gets that notification for every element of the process. Delivery is a posted item of the application's
// loop; what has been unsubscribed by then, or is withheld for want of trust, doesn't arrive.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "platform/Accessibility.h"
#include "platform/Lifetime.h"
#include "platform/Token.h"

namespace desk {

class ApplicationLoop;
class Finder;
class Permissions;

class ObserverPort final : public platform::AXObserver {
public:
    ObserverPort(Finder& theFinder, Permissions& thePermissions, ApplicationLoop& theLoop,
                 std::int32_t theProcessIdentifier, platform::AXObserverCallback theCallback,
                 std::shared_ptr<std::size_t> theCount);
    ~ObserverPort() override;

    platform::AXError AXObserverAddNotification(const platform::AXUIElement& element, std::string_view notification,
                                                void* context) override;
    platform::AXError AXObserverRemoveNotification(const platform::AXUIElement& element,
                                                   std::string_view notification) override;
    void addSourceToMainRunLoop() override { isOnRunLoop = true; }
    void removeSourceFromMainRunLoop() override { isOnRunLoop = false; }

private:
    struct Subscription {
        platform::AXUIElement element;
        std::string notification;
        void* context;
    };

    const Subscription* match(const platform::AXUIElement& element, const std::string& notification) const;
    void deliver(const platform::AXUIElement& element, const std::string& notification);

    Permissions& permissions;
    ApplicationLoop& loop;
    std::int32_t processIdentifier;
    platform::AXObserverCallback callback;
    std::shared_ptr<std::size_t> count;
    std::vector<Subscription> subscriptions;
    platform::Token listener;
    bool isOnRunLoop = false;
    platform::Lifetime lifetime;
};

}  // namespace desk
