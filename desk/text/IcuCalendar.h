// The calendar and the time zone that the user has chosen, as everything on the machine asks for them. Both can be changed at any time; which moment it is, is another's affair.
#pragma once

#include <memory>
#include <string>

#include <unicode/calendar.h>

#include "platform/Calendar.h"

namespace desk {

class IcuCalendar final : public platform::Calendar {
public:
    // Gregorian, in UTC.
    IcuCalendar();
    ~IcuCalendar() override;

    // False for a name that no zone or calendar has; nothing changes then. `America/Sao_Paulo`; `gregorian`, `buddhist`, ...
    bool setZone(const std::string& name);
    bool setCalendar(const std::string& name);

    platform::DateComponents dateComponents(platform::Date date) override;
    platform::Date startOfDay(platform::Date date) override;
    std::optional<platform::Date> dateByAddingDays(int days, platform::Date date) override;

private:
    bool use(const std::string& calendarName, const icu::TimeZone& timeZone);

    std::string name;
    std::unique_ptr<icu::Calendar> calendar;
};

}  // namespace desk
