// How Finder words sizes, dates and kinds in its lists.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Time.h"

namespace desk {

// Decimal units: "Zero bytes", "12 bytes", "4 KB", "1.2 MB".
std::string fileSizeText(std::uint64_t bytes);
// "Today at 09:00", "Yesterday at 18:30", "3 Jun 2024 at 09:00", in UTC.
std::string dateText(platform::Date date, platform::Date now);
// "Mon 3 Jun 09:00", as the menu bar shows the time.
std::string clockText(platform::Date now);
// By the name's extension: "PDF Document", "Plain Text", "Document".
std::string documentKindText(std::string_view name);

}  // namespace desk
