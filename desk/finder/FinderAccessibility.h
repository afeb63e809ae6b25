// Finder's Accessibility tree: the application element, its windows (info panels and the desktop among them, which callers must filter out), attributes,
// writes, actions, and the notifications that observers have asked for. Writes act at once; notifications are posted, never delivered inside the write.
// It asks Faults what is to go wrong, and answers whether or not anybody is trusted: trust is the caller's affair (see AccessibilityPort).
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Accessibility.h"

namespace desk {

class Machine;

class FinderAccessibility {
public:
    explicit FinderAccessibility(Machine& theMachine) : machine(theMachine) {}

    std::optional<platform::AXAttributeValue> copyAttribute(const platform::AXUIElement& element,
                                                            std::string_view attribute) const;
    platform::AXError setAttribute(const platform::AXUIElement& element, std::string_view attribute,
                                   const platform::AXAttributeValue& value);
    platform::AXError performAction(const platform::AXUIElement& element, std::string_view action);

    // Called for each notification, as a posted item; the subscriber filters by what it has registered for. The answer serves unsubscribe().
    using Listener = std::function<void(const platform::AXUIElement& element, const std::string& notification)>;
    std::uint64_t subscribe(Listener listener);
    void unsubscribe(std::uint64_t subscription);

    // Finder tells what happened to a window; 0 is the application itself. Faults decide whether it is delivered, once, twice, late or not at all.
    void post(std::int64_t window, const std::string& notification);

    platform::AXUIElement applicationElement() const;
    platform::AXUIElement windowElement(std::int64_t number) const;

private:
    Machine& machine;
    std::map<std::uint64_t, Listener> listeners;
    std::uint64_t lastSubscription = 0;
};

}  // namespace desk
