// The order of names in the English locale, which is the user's. It is never changed after it was made, so any thread may ask.
#pragma once

#include <memory>

#include <unicode/coll.h>

#include "platform/Collation.h"

namespace desk {

class IcuCollation final : public platform::Collation {
public:
    IcuCollation();

    int localizedStandardCompare(std::string_view a, std::string_view b) override;
    void appendLocalizedStandardKey(std::string_view name, std::string& keys) override;

private:
    // Null when the library's data is missing; names are then ordered by their bytes.
    std::unique_ptr<icu::Collator> collator;
};

}  // namespace desk
