// The dynamic value in which the platform answers where a caller can't rely on what comes: window lists, Info dictionaries, user defaults,
// error dictionaries. A missing key and a value of the wrong type are both expressible; the readers answer empty for either.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/Geometry.h"

namespace platform {

class Value;
using Array = std::vector<Value>;
using Dictionary = std::map<std::string, Value, std::less<>>;

class Value {
public:
    using Storage = std::variant<std::monostate, bool, std::int64_t, double, std::string, Array, Dictionary>;

    Value() = default;
    Value(bool value) : storage(value) {}                      // NOLINT(google-explicit-constructor)
    Value(int value) : storage(std::int64_t{value}) {}         // NOLINT(google-explicit-constructor)
    Value(std::int64_t value) : storage(value) {}              // NOLINT(google-explicit-constructor)
    Value(double value) : storage(value) {}                    // NOLINT(google-explicit-constructor)
    Value(const char* value) : storage(std::string(value)) {}  // NOLINT(google-explicit-constructor)
    Value(std::string value) : storage(std::move(value)) {}    // NOLINT(google-explicit-constructor)
    Value(Array value) : storage(std::move(value)) {}          // NOLINT(google-explicit-constructor)
    Value(Dictionary value) : storage(std::move(value)) {}     // NOLINT(google-explicit-constructor)

    template <typename T>
    const T* as() const {
        return std::get_if<T>(&storage);
    }
    bool isNull() const { return std::holds_alternative<std::monostate>(storage); }

    // A number or a boolean, as numbers of the platform are; a real number is cut to its whole part.
    std::optional<std::int64_t> integer() const;
    std::optional<double> number() const;
    std::optional<bool> boolean() const;

    friend bool operator==(const Value&, const Value&) = default;

private:
    Storage storage;
};

// Null when the key is missing.
const Value* find(const Dictionary& dictionary, std::string_view key);

// A rectangle in dictionary form has the keys X, Y, Width and Height; empty when one is missing or no number.
Dictionary CGRectCreateDictionaryRepresentation(const CGRect& rect);
std::optional<CGRect> CGRectMakeWithDictionaryRepresentation(const Value& value);

}  // namespace platform
