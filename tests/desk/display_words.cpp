// How sizes and dates are worded, at the borders of their units.
#include <gtest/gtest.h>

#include "desk/finder/FinderWords.h"

namespace {

TEST(FinderWords, SizesUseTheLargestUnitThatFits) {
    const std::pair<std::uint64_t, const char*> cases[] = {
        {0, "Zero bytes"},
        {1, "1 byte"},
        {999, "999 bytes"},
        {1000, "1 KB"},
        {4096, "4 KB"},
        {999'499, "999 KB"},
        {999'600, "1.0 MB"},
        {1'250'000, "1.2 MB"},
        {5'000'000'000, "5.00 GB"},
        {1'500'000'000'000, "1.50 TB"},
    };
    for (const auto& [bytes, text] : cases) EXPECT_EQ(desk::fileSizeText(bytes), text);
}

TEST(FinderWords, DatesAreRelativeForTwoDays) {
    // 2024-06-03 00:00:00 UTC.
    constexpr std::int64_t midnight = 1'717'372'800;
    const auto at = [](std::int64_t seconds) { return platform::Date{std::chrono::seconds(seconds)}; };
    const platform::Date now = at(midnight + 9 * 3600);
    const std::pair<std::int64_t, const char*> cases[] = {
        {midnight + 9 * 3600, "Today at 09:00"}, {midnight, "Today at 00:00"},
        {midnight - 60, "Yesterday at 23:59"},   {midnight - 86'400 - 60, "1 Jun 2024 at 23:59"},
        {-60, "31 Dec 1969 at 23:59"},
    };
    for (const auto& [seconds, text] : cases) EXPECT_EQ(desk::dateText(at(seconds), now), text);
    EXPECT_EQ(desk::clockText(now), "Mon 3 Jun  09:00");
}

}  // namespace
