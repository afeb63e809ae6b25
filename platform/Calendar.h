// The user's current calendar in the user's current time zone. Both may change between two calls. Main thread only.
#pragma once

#include <optional>

#include "platform/Time.h"

namespace platform {

// What the calendar doesn't give is empty. A year counts in its era.
struct DateComponents {
    std::optional<int> year;
    std::optional<int> month;
    std::optional<int> day;
};

class Calendar {
public:
    virtual ~Calendar() = default;
    virtual DateComponents dateComponents(Date date) = 0;
    // The first moment of the day that the date is in: not midnight where the clocks are put forward then.
    virtual Date startOfDay(Date date) = 0;
    // The same time of day that many days later, or the first that there is after it; empty when the calendar has no such date.
    virtual std::optional<Date> dateByAddingDays(int days, Date date) = 0;
};

}  // namespace platform
