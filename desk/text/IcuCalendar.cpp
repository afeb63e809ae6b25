#include "desk/text/IcuCalendar.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include <unicode/locid.h>
#include <unicode/strenum.h>
#include <unicode/timezone.h>

namespace desk {

namespace {

using std::chrono::milliseconds;

double millisecondsOf(platform::Date date) {
    return static_cast<double>(std::chrono::floor<milliseconds>(date.sinceEpoch).count());
}

platform::Date dateOf(double time) {
    return platform::Date{milliseconds(std::llround(time))};
}

bool isCalendar(const std::string& name) {
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> known(
        icu::Calendar::getKeywordValuesForLocale("calendar", icu::Locale::getRoot(), false, error));
    while (known && U_SUCCESS(error)) {
        const char* each = known->next(nullptr, error);
        if (each == nullptr) return false;
        if (name == each) return true;
    }
    return false;
}

std::optional<int> field(icu::Calendar& calendar, UCalendarDateFields which, int first) {
    UErrorCode error = U_ZERO_ERROR;
    const int value = calendar.get(which, error) + first;
    return U_SUCCESS(error) ? std::optional(value) : std::nullopt;
}

}  // namespace

IcuCalendar::IcuCalendar() {
    use("gregorian", *icu::TimeZone::getGMT());
}

IcuCalendar::~IcuCalendar() = default;

bool IcuCalendar::setZone(const std::string& zoneName) {
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(zoneName)));
    return zone && *zone != icu::TimeZone::getUnknown() && use(name, *zone);
}

bool IcuCalendar::setCalendar(const std::string& calendarName) {
    return isCalendar(calendarName) && use(calendarName, calendar->getTimeZone());
}

bool IcuCalendar::use(const std::string& calendarName, const icu::TimeZone& timeZone) {
    UErrorCode error = U_ZERO_ERROR;
    const std::string locale = "en@calendar=" + calendarName;
    std::unique_ptr<icu::Calendar> made(icu::Calendar::createInstance(timeZone, icu::Locale(locale.c_str()), error));
    if (!made || U_FAILURE(error)) return false;
    // Of a time that there is twice the first, and for one that there isn't the next that there is.
    made->setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
    made->setSkippedWallTimeOption(UCAL_WALLTIME_NEXT_VALID);
    name = calendarName;
    calendar = std::move(made);
    return true;
}

platform::DateComponents IcuCalendar::dateComponents(platform::Date date) {
    UErrorCode error = U_ZERO_ERROR;
    calendar->setTime(millisecondsOf(date), error);
    if (U_FAILURE(error)) return {};
    return {field(*calendar, UCAL_YEAR, 0), field(*calendar, UCAL_MONTH, 1), field(*calendar, UCAL_DATE, 0)};
}

platform::Date IcuCalendar::startOfDay(platform::Date date) {
    UErrorCode error = U_ZERO_ERROR;
    calendar->setTime(millisecondsOf(date), error);
    for (const UCalendarDateFields each : {UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND})
        calendar->set(each, 0);
    const double start = calendar->getTime(error);
    return U_SUCCESS(error) ? dateOf(start) : date;
}

std::optional<platform::Date> IcuCalendar::dateByAddingDays(int days, platform::Date date) {
    UErrorCode error = U_ZERO_ERROR;
    calendar->setTime(millisecondsOf(date), error);
    calendar->add(UCAL_DATE, days, error);
    const double moved = calendar->getTime(error);
    return U_SUCCESS(error) ? std::optional(dateOf(moved)) : std::nullopt;
}

}  // namespace desk
