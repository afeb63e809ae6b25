#include "platform/Dictionary.h"

#include <cmath>

namespace platform {

namespace {

// Converting what 64 bits can't hold would be undefined.
std::optional<std::int64_t> wholePart(double value) {
    constexpr double limit = 9.2e18;
    if (!std::isfinite(value) || std::fabs(value) > limit) return std::nullopt;
    return static_cast<std::int64_t>(value);
}

}  // namespace

std::optional<std::int64_t> Value::integer() const {
    if (const auto* whole = as<std::int64_t>()) return *whole;
    if (const auto* real = as<double>()) return wholePart(*real);
    if (const auto* flag = as<bool>()) return *flag ? 1 : 0;
    return std::nullopt;
}

std::optional<double> Value::number() const {
    if (const auto* real = as<double>()) return *real;
    if (const auto* whole = as<std::int64_t>()) return static_cast<double>(*whole);
    if (const auto* flag = as<bool>()) return *flag ? 1.0 : 0.0;
    return std::nullopt;
}

std::optional<bool> Value::boolean() const {
    const auto value = number();
    if (!value) return std::nullopt;
    return *value != 0;
}

const Value* find(const Dictionary& dictionary, std::string_view key) {
    const auto entry = dictionary.find(key);
    return entry == dictionary.end() ? nullptr : &entry->second;
}

Dictionary CGRectCreateDictionaryRepresentation(const CGRect& rect) {
    return {{"X", rect.origin.x}, {"Y", rect.origin.y}, {"Width", rect.size.width}, {"Height", rect.size.height}};
}

std::optional<CGRect> CGRectMakeWithDictionaryRepresentation(const Value& value) {
    const auto* dictionary = value.as<Dictionary>();
    if (dictionary == nullptr) return std::nullopt;
    const auto read = [&](std::string_view key) -> std::optional<double> {
        const Value* entry = find(*dictionary, key);
        return entry == nullptr ? std::nullopt : entry->number();
    };
    const auto x = read("X");
    const auto y = read("Y");
    const auto width = read("Width");
    const auto height = read("Height");
    if (!x || !y || !width || !height) return std::nullopt;
    return CGRectMake(*x, *y, *width, *height);
}

}  // namespace platform
