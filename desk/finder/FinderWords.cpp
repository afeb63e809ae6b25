#include "desk/finder/FinderWords.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <chrono>
#include <cstdio>

namespace desk {

namespace {

using Days = std::chrono::sys_days;

constexpr std::array<const char*, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                             "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr std::array<const char*, 7> weekdays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

struct Moment {
    Days day;
    std::chrono::year_month_day date;
    std::string time;  // 24 hours
};

std::string twoDigits(long value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
}

Moment momentOf(platform::Date date) {
    const std::chrono::sys_time<std::chrono::nanoseconds> point(date.sinceEpoch);
    const Days day = std::chrono::floor<std::chrono::days>(point);
    const auto minutes = std::chrono::floor<std::chrono::minutes>(point - day).count();
    return {day, std::chrono::year_month_day(day), twoDigits(minutes / 60) + ":" + twoDigits(minutes % 60)};
}

std::string dayAndMonth(const std::chrono::year_month_day& date) {
    return std::to_string(unsigned(date.day())) + " " + months[unsigned(date.month()) - 1];
}

struct Unit {
    double bytes;
    const char* name;
    const char* format;
};
constexpr std::array units{Unit{1e12, "TB", "%.2f"}, Unit{1e9, "GB", "%.2f"}, Unit{1e6, "MB", "%.1f"},
                           Unit{1e3, "KB", "%.0f"}};

struct Kind {
    std::string_view extension;
    const char* text;
};
constexpr std::array kinds{
    Kind{"txt", "Plain Text"},      Kind{"md", "Markdown Text"},    Kind{"pdf", "PDF Document"},
    Kind{"jpg", "JPEG image"},      Kind{"jpeg", "JPEG image"},     Kind{"png", "PNG image"},
    Kind{"csv", "CSV Document"},    Kind{"dmg", "Disk Image"},      Kind{"zip", "ZIP archive"},
    Kind{"numbers", "Spreadsheet"}, Kind{"pages", "Text Document"}, Kind{"html", "HTML text"},
    Kind{"json", "JSON file"},      Kind{"cpp", "C++ Source"},      Kind{"h", "C Header Source"},
    Kind{"sh", "Shell Script"},
};

}  // namespace

std::string fileSizeText(std::uint64_t bytes) {
    if (bytes == 0) return "Zero bytes";
    if (bytes == 1) return "1 byte";
    const auto value = static_cast<double>(bytes);
    // From half a unit's last shown digit on, rounding reaches the larger one.
    const auto* unit =
        std::find_if(units.begin(), units.end(), [&](const Unit& each) { return value >= each.bytes * 0.9995; });
    if (unit == units.end()) return std::to_string(bytes) + " bytes";
    std::array<char, 32> number{};
    (void)std::snprintf(number.data(), number.size(), unit->format, value / unit->bytes);
    return std::string(number.data()) + " " + unit->name;
}

std::string dateText(platform::Date date, platform::Date now) {
    const Moment moment = momentOf(date);
    const auto age = momentOf(now).day - moment.day;
    if (age == std::chrono::days(0)) return "Today at " + moment.time;
    if (age == std::chrono::days(1)) return "Yesterday at " + moment.time;
    return dayAndMonth(moment.date) + " " + std::to_string(int(moment.date.year())) + " at " + moment.time;
}

std::string clockText(platform::Date now) {
    const Moment moment = momentOf(now);
    const std::chrono::weekday weekday(moment.day);
    return std::string(weekdays[weekday.c_encoding()]) + " " + dayAndMonth(moment.date) + "  " + moment.time;
}

std::string documentKindText(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0) return "Document";
    std::string extension(name.substr(dot + 1));
    for (char& character : extension)
        character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    const auto* kind =
        std::find_if(kinds.begin(), kinds.end(), [&](const Kind& each) { return each.extension == extension; });
    return kind == kinds.end() ? "Document" : kind->text;
}

}  // namespace desk
