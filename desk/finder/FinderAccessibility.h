// Finder's Accessibility tree: the application element, its windows (info panels and the desktop among them, which callers must filter out), attributes,
// writes, actions, and the notifications that observers have asked for. Writes act at once; notifications are posted, never delivered inside the write.
// It asks Faults what is to go wrong, and answers whether or not anybody is trusted: trust is the caller's affair (see AccessibilityPort).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "desk/finder/FinderNeighbours.h"
#include "platform/Accessibility.h"
#include "platform/Signal.h"
#include "platform/Time.h"

namespace desk {

class Finder;

class FinderAccessibility {
public:
    FinderAccessibility(Finder& theFinder, const FinderNeighbours& theNeighbours)
        : finder(theFinder), neighbours(theNeighbours) {}

    std::optional<platform::AXAttributeValue> copyAttribute(const platform::AXUIElement& element,
                                                            std::string_view attribute) const;
    platform::AXError setAttribute(const platform::AXUIElement& element, std::string_view attribute,
                                   const platform::AXAttributeValue& value);
    platform::AXError performAction(const platform::AXUIElement& element, std::string_view action);

    // Each notification, as a posted item; the subscriber filters by what it has registered for.
    platform::Signal<const platform::AXUIElement&, const std::string&> told;

    // Finder tells what happened to a window; 0 is the application itself. Faults decide whether it is delivered, once, twice, late or not at all.
    void post(std::int64_t window, const std::string& notification);

    platform::AXUIElement applicationElement() const;
    platform::AXUIElement windowElement(std::int64_t number) const;

private:
    std::optional<platform::AXAttributeValue> windowAttribute(std::int64_t number, std::string_view attribute) const;
    std::optional<platform::AXAttributeValue> desktopAttribute(std::string_view attribute) const;
    std::optional<platform::AXAttributeValue> applicationAttribute(std::string_view attribute) const;
    std::optional<platform::AXAttributeValue> applicationRole() const;
    std::optional<platform::AXAttributeValue> applicationTitle() const;
    std::optional<platform::AXAttributeValue> isFrontmost() const;
    std::optional<platform::AXAttributeValue> mainWindowElement() const;
    std::optional<platform::AXAttributeValue> windowElements() const;

    bool isAlive(const platform::AXUIElement& element) const;
    platform::AXError setPosition(std::int64_t window, const platform::AXAttributeValue& value);
    platform::AXError setSize(std::int64_t window, const platform::AXAttributeValue& value);
    platform::AXError setMain(std::int64_t window, const platform::AXAttributeValue& value);
    platform::AXError setMinimized(std::int64_t window, const platform::AXAttributeValue& value);
    platform::AXError setFullScreen(std::int64_t window, const platform::AXAttributeValue& value);
    platform::AXError setFocusedWindow(std::int64_t application, const platform::AXAttributeValue& value);
    platform::AXError setFrontmost(std::int64_t application, const platform::AXAttributeValue& value);

    Finder& finder;
    FinderNeighbours neighbours;
    platform::Date lastLateDelivery = platform::Date::distantPast();
};

}  // namespace desk
