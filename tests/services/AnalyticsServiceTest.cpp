// One event for each of the user's days, on the desk: over midnights, zones, calendars and clocks that are set.
#include <gtest/gtest.h>

#include "services/AnalyticsService.h"
#include "tests/kit/MachineKit.h"

namespace brindle {
namespace {

using platform::Date;

struct AnalyticsTest : testing::Test {
    kit::OrvaneDesk mac;
    platform::Platform& platform = mac.launch().platform();
    std::vector<std::string>& events = mac.machine.analyticsEvents;
    platform::Dictionary& defaults = mac.machine.defaults["com.velmora.Brindle"];

    void SetUp() override { forget(); }
    void forget() {
        defaults.erase("analyticsLastActiveDay");
        events.clear();
    }
    // Seconds since 1970 in UTC.
    static Date at(std::int64_t seconds) { return Date{std::chrono::seconds(seconds)}; }
    std::string lastDay() {
        const auto* day = defaults["analyticsLastActiveDay"].as<std::string>();
        return day == nullptr ? "none" : *day;
    }
};

TEST_F(AnalyticsTest, SendsOneEventForEachOfTheUsersDays) {
    struct Case {
        const char* zone;
        const char* calendar;
        std::int64_t use;      // the first of the day
        const char* day;       // its identifier
        std::int64_t nextDay;  // from when on the next one counts
    };
    const Case cases[] = {
        {"UTC", "gregorian", 1'717'405'200, "2024-06-03", 1'717'459'200},
        {"America/New_York", "gregorian", 1'717'405'200, "2024-06-03", 1'717'473'600},
        {"Asia/Tokyo", "gregorian", 1'717'426'800, "2024-06-04", 1'717'513'200},
        // 23 hours, 25 hours, and a day that begins at one: so does, for the service, the day after it.
        {"Europe/Berlin", "gregorian", 1'711'839'600, "2024-03-31", 1'711'922'400},
        {"Europe/Berlin", "gregorian", 1'729'980'000, "2024-10-27", 1'730'070'000},
        {"America/Sao_Paulo", "gregorian", 1'541'300'400, "2018-11-04", 1'541'386'800},
        {"America/Sao_Paulo", "gregorian", 1'541'250'000, "2018-11-03", 1'541'300'400},
        // The day after is one that didn't exist there.
        {"Pacific/Apia", "gregorian", 1'325'185'200, "2011-12-29", 1'325'239'200},
        {"UTC", "buddhist", 1'717'405'200, "2567-06-03", 1'717'459'200},
        {"UTC", "japanese", 1'717'405'200, "0006-06-03", 1'717'459'200},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(std::string(each.zone) + " " + each.day);
        ASSERT_TRUE(mac.machine.calendar.setZone(each.zone));
        ASSERT_TRUE(mac.machine.calendar.setCalendar(each.calendar));
        forget();
        AnalyticsService service(platform);
        service.configure();
        service.recordActiveUseIfNeeded(at(each.use));
        EXPECT_EQ(lastDay(), each.day);
        service.recordActiveUseIfNeeded(at(each.nextDay - 1));
        EXPECT_EQ(events.size(), 1U);
        service.recordActiveUseIfNeeded(at(each.nextDay));
        EXPECT_EQ(events, (std::vector<std::string>{"orvane_active", "orvane_active"}));
    }
}

TEST_F(AnalyticsTest, ObeysTheUserAtBothLevelsAndIsSilentWithoutItsResource) {
    auto kitWas = [&, start = mac.machine.journal.entries().size()]() mutable {
        std::string told;
        const auto& entries = mac.machine.journal.entries();
        for (; start < entries.size(); ++start) told += entries[start].what + ";";
        return told;
    };
    AnalyticsService service(platform);
    service.configure();
    service.configure();
    EXPECT_EQ(kitWas(), "analytics collection on;");
    service.setEnabled(false);
    service.recordActiveUseIfNeeded(mac.machine.clock.now());
    EXPECT_EQ(kitWas(), "analytics collection off;");
    EXPECT_EQ(lastDay(), "none");
    // Consent given today counts for today, once.
    service.setEnabled(true);
    service.setEnabled(false);
    service.setEnabled(true);
    EXPECT_EQ(kitWas(), "analytics collection on;analytics event orvane_active;analytics collection off;"
                        "analytics collection on;");

    ASSERT_TRUE(mac.machine.disk.remove("/Applications/Orvane.app/Contents/Resources/GoogleService-Info.plist"));
    forget();
    AnalyticsService silent(platform);
    silent.configure();
    silent.setEnabled(false);
    silent.setEnabled(true);
    silent.recordActiveUseIfNeeded(mac.machine.clock.now());
    EXPECT_EQ(kitWas(), "");
    EXPECT_EQ(defaults["anonymousAnalyticsEnabled"], platform::Value(true));
}

}  // namespace
}  // namespace brindle
