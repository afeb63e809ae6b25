// The locale's order of names: numbers inside them compare by value, upper and lower case don't separate. Names that the locale holds equal, such as a2 and a02, go by their
// bytes, so that no two names are in no order. Any thread.
#pragma once

#include <string>
#include <string_view>

namespace platform {

class Collation {
public:
    virtual ~Collation() = default;
    // localizedStandardCompare: below 0 or above 0 as the first name goes before or after the second, 0 for the same name alone.
    virtual int localizedStandardCompare(std::string_view a, std::string_view b) = 0;
    // Appends a key whose bytes compare as the names do; worth making when many names are sorted.
    virtual void appendLocalizedStandardKey(std::string_view name, std::string& keys) = 0;
};

}  // namespace platform
