// Dates and durations as 64-bit nanoseconds, so that "0.2 seconds later" is met exactly and times can be compared for equality.
// A Date counts from 1970-01-01 00:00:00 UTC. What time it is now is asked of a Clock; nothing here reads one by itself.
#pragma once

#include <chrono>
#include <cmath>
#include <compare>
#include <cstdint>

namespace platform {

using Duration = std::chrono::nanoseconds;

// The nearest whole number of nanoseconds; what 64 bits can't hold is clamped to some 290 years.
inline Duration seconds(double value) {
    constexpr double limit = 9.2e18;
    const double nanoseconds = std::round(value * 1e9);
    if (!(nanoseconds > -limit)) return Duration(static_cast<std::int64_t>(-limit));
    if (nanoseconds > limit) return Duration(static_cast<std::int64_t>(limit));
    return Duration(static_cast<std::int64_t>(nanoseconds));
}

inline double inSeconds(Duration duration) {
    return static_cast<double>(duration.count()) / 1e9;
}

struct Date {
    Duration sinceEpoch{0};

    // Earlier than every real date, and near enough that differences to real dates don't overflow.
    static constexpr Date distantPast() { return Date{Duration(std::int64_t{-4'000'000'000'000'000'000})}; }
    static constexpr Date distantFuture() { return Date{Duration(std::int64_t{5'000'000'000'000'000'000})}; }

    friend constexpr auto operator<=>(const Date&, const Date&) = default;
    friend constexpr Duration operator-(const Date& a, const Date& b) { return a.sinceEpoch - b.sinceEpoch; }
    friend constexpr Date operator+(const Date& date, Duration duration) { return Date{date.sinceEpoch + duration}; }
};

class Clock {
public:
    virtual ~Clock() = default;
    // Any thread.
    virtual Date now() const = 0;
};

}  // namespace platform
