#include "services/AnalyticsService.h"

#include <array>
#include <cstdio>

namespace brindle {

namespace {

constexpr const char* consentKey = "anonymousAnalyticsEnabled";
constexpr const char* lastActiveDayKey = "analyticsLastActiveDay";
constexpr platform::Duration dayWithoutCalendar = std::chrono::seconds(86'400);

}  // namespace

AnalyticsService::AnalyticsService(platform::Platform& thePlatform) : platform(thePlatform) {
    platform.defaults.registerDefaults({{consentKey, true}});
    isEnabled.setIfChanged(platform.defaults.boolForKey(consentKey));
    const platform::Date now = platform.clock.now();
    if (platform.defaults.stringForKey(lastActiveDayKey) == dayIdentifier(now))
        nextEligibleRecordDate = startOfNextDay(now);
}

void AnalyticsService::configure() {
    if (isConfigured) return;
    if (!platform.bundle.pathForResource("GoogleService-Info", "plist")) return;
    if (!platform.analytics.hasDefaultApp()) platform.analytics.configure();
    isConfigured = true;
    platform.analytics.setAnalyticsCollectionEnabled(isEnabled.get());
}

void AnalyticsService::recordActiveUseIfNeeded(platform::Date now) {
    if (!isConfigured || !isEnabled.get()) return;
    if (now < nextEligibleRecordDate) return;
    const std::string today = dayIdentifier(now);
    if (platform.defaults.stringForKey(lastActiveDayKey) == today) return;
    platform.analytics.logEvent("orvane_active");
    platform.defaults.setObject(lastActiveDayKey, today);
    nextEligibleRecordDate = startOfNextDay(now);
}

void AnalyticsService::setEnabled(bool enabled) {
    isEnabled.setIfChanged(enabled);
    platform.defaults.setObject(consentKey, enabled);
    if (!isConfigured) return;
    platform.analytics.setAnalyticsCollectionEnabled(enabled);
    if (enabled) recordActiveUseIfNeeded(platform.clock.now());
}

std::string AnalyticsService::dayIdentifier(platform::Date date) const {
    const platform::DateComponents day = platform.calendar.dateComponents(date);
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", day.year.value_or(0), day.month.value_or(0),
                  day.day.value_or(0));
    return text.data();
}

platform::Date AnalyticsService::startOfNextDay(platform::Date date) const {
    const auto next = platform.calendar.dateByAddingDays(1, platform.calendar.startOfDay(date));
    return next.value_or(date + dayWithoutCalendar);
}

}  // namespace brindle
