// Sends one anonymous event for each calendar day of use, and nothing else; the only one that talks to the analytics SDK. It owns the user's consent. No path, file name or other content passes
// through it. The one instance is platform.shared<AnalyticsService>(). Main thread only.
#pragma once

#include <string>

#include "platform/Platform.h"

namespace brindle {

class AnalyticsService final : public platform::ObservableObject {
public:
    explicit AnalyticsService(platform::Platform& thePlatform);

    // The user's consent.
    platform::Published<bool, AnalyticsService> isEnabled{*this, false};

    // Once at launch. Without the SDK's resource in the bundle nothing is sent in this run.
    void configure();
    // At the end of each pass that has seen a Finder window. After the day's event it costs one comparison of dates.
    void recordActiveUseIfNeeded(platform::Date now);
    void setEnabled(bool enabled);

private:
    std::string dayIdentifier(platform::Date date) const;
    platform::Date startOfNextDay(platform::Date date) const;

    platform::Platform& platform;
    bool isConfigured = false;
    // Before it recordActiveUseIfNeeded returns at once.
    platform::Date nextEligibleRecordDate = platform::Date::distantPast();
};

}  // namespace brindle
