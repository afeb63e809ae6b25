#include "tracking/DebugLog.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <string>

namespace brindle::DebugLog {

namespace {

std::string iso8601(platform::Date date) {
    using namespace std::chrono;
    const sys_seconds moment(floor<seconds>(date.sinceEpoch));
    const auto day = floor<days>(moment);
    const year_month_day calendar(day);
    const hh_mm_ss time(moment - day);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(calendar.year()),
                  static_cast<unsigned>(calendar.month()), static_cast<unsigned>(calendar.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
    return text.data();
}

}  // namespace

void write(platform::Platform& platform, std::string_view message) {
    std::string line = "[" + iso8601(platform.clock.now()) + "] ";
    line += message;
    line += '\n';

    if (!platform.files.fileExistsAtPath(path)) {
        platform.files.writeFile(path, line);
        return;
    }
    const auto handle = platform.files.fileHandleForWritingAtPath(path);
    if (!handle) return;
    handle->seekToEnd();
    handle->write(line);
    handle->close();
}

}  // namespace brindle::DebugLog
