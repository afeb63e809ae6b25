#include "desk/ports/CollationPort.h"

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

CollationPort::CollationPort() : collator(standardCollator()) {}

int CollationPort::localizedStandardCompare(std::string_view a, std::string_view b) {
    UErrorCode status = U_ZERO_ERROR;
    if (collator) return collator->compareUTF8(piece(a), piece(b), status);
    return a.compare(b);
}

std::string CollationPort::localizedStandardKey(std::string_view name) {
    if (!collator) return std::string(name);
    const icu::UnicodeString text = icu::UnicodeString::fromUTF8(piece(name));
    std::string key(name.size() * 2 + 16, '\0');
    const auto fill = [&] {
        return collator->getSortKey(text, reinterpret_cast<std::uint8_t*>(key.data()),
                                    static_cast<std::int32_t>(key.size()));
    };
    std::int32_t length = fill();
    if (static_cast<std::size_t>(length) > key.size()) {
        key.resize(static_cast<std::size_t>(length));
        length = fill();
    }
    // The last byte is the key's terminating zero.
    key.resize(length > 0 ? static_cast<std::size_t>(length) - 1 : 0);
    return key;
}

}  // namespace desk
