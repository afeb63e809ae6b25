#include "desk/text/IcuCollation.h"

#include <cstdint>

namespace desk {

namespace {

icu::StringPiece piece(std::string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

std::unique_ptr<icu::Collator> standardCollator() {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(icu::Locale::getUS(), status));
    if (U_FAILURE(status) != 0) return nullptr;
    collator->setStrength(icu::Collator::TERTIARY);
    collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    return U_SUCCESS(status) != 0 ? std::move(collator) : nullptr;
}

}  // namespace

IcuCollation::IcuCollation() : collator(standardCollator()) {}

int IcuCollation::localizedStandardCompare(std::string_view a, std::string_view b) {
    UErrorCode status = U_ZERO_ERROR;
    const int order = collator ? collator->compareUTF8(piece(a), piece(b), status) : 0;
    return order != 0 ? order : a.compare(b);
}

void IcuCollation::appendLocalizedStandardKey(std::string_view name, std::string& keys) {
    if (!collator) {
        keys += name;
        return;
    }
    const icu::UnicodeString text = icu::UnicodeString::fromUTF8(piece(name));
    const std::size_t begin = keys.size();
    const auto fill = [&](std::size_t room) {
        keys.resize(begin + room);
        return static_cast<std::size_t>(collator->getSortKey(text, reinterpret_cast<std::uint8_t*>(keys.data() + begin),
                                                             static_cast<std::int32_t>(room)));
    };
    const std::size_t guessed = name.size() * 2 + 16;
    std::size_t length = fill(guessed);
    if (length > guessed) length = fill(length);
    // Its last byte is a zero, and the only one, so that the name's own bytes decide between equal keys.
    keys.resize(begin + length);
    keys += name;
}

}  // namespace desk
