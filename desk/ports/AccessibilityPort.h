// Accessibility as one application has it: passes on to Finder's tree while the user trusts the application, and fails for every other process.
// Notifications arrive in a turn of the application.
#pragma once

#include <cstddef>
#include <memory>

#include "platform/Accessibility.h"

namespace desk {

class Finder;
class Journal;
class LaunchedApplication;
class Permissions;

class AccessibilityPort final : public platform::Accessibility {
public:
    AccessibilityPort(Finder& theFinder, Permissions& thePermissions, Journal& theJournal,
                      LaunchedApplication& theApplication)
        : finder(theFinder), permissions(thePermissions), journal(theJournal), application(theApplication) {}

    bool AXIsProcessTrusted() override;
    bool AXIsProcessTrustedWithOptions(const platform::Dictionary& options) override;
    platform::AXUIElement AXUIElementCreateApplication(std::int32_t processIdentifier) override;
    std::optional<platform::AXAttributeValue> AXUIElementCopyAttributeValue(const platform::AXUIElement& element,
                                                                            std::string_view attribute) override;
    platform::AXError AXUIElementSetAttributeValue(const platform::AXUIElement& element, std::string_view attribute,
                                                   const platform::AXAttributeValue& value) override;
    platform::AXError AXUIElementPerformAction(const platform::AXUIElement& element, std::string_view action) override;
    std::unique_ptr<platform::AXObserver> AXObserverCreate(std::int32_t processIdentifier,
                                                           platform::AXObserverCallback callback) override;

    std::size_t subscriptionCount() const { return *subscriptions; }

private:
    // Why a call about this element fails; success when it may go on to Finder.
    platform::AXError refusal(const platform::AXUIElement& element) const;
    bool isFinder(std::int32_t processIdentifier) const;

    Finder& finder;
    Permissions& permissions;
    Journal& journal;
    LaunchedApplication& application;
    std::shared_ptr<std::size_t> subscriptions = std::make_shared<std::size_t>(0);  // of all observers
};

}  // namespace desk
