#include "desk/ports/DefaultsPort.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "desk/processes/LaunchedApplication.h"

namespace desk {

namespace {

bool isTrue(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    if (text == "yes" || text == "true") return true;
    double number = 0;
    const char* end = text.data() + text.size();
    return std::from_chars(text.data(), end, number).ptr == end && number != 0 && std::isfinite(number);
}

}  // namespace

std::optional<std::string> DefaultsPort::stringForKey(const std::string& key) {
    const platform::Value* value = platform::find(domain, key);
    const auto* text = value == nullptr ? nullptr : value->as<std::string>();
    if (text == nullptr) return std::nullopt;
    return *text;
}

bool DefaultsPort::boolForKey(const std::string& key) {
    const platform::Value* value = platform::find(domain, key);
    if (value == nullptr) return false;
    if (const auto* text = value->as<std::string>()) return isTrue(*text);
    return value->number().value_or(0) != 0;
}

void DefaultsPort::setObject(const std::string& key, platform::Value value) {
    if (!application.isDead()) domain.insert_or_assign(key, std::move(value));
}

}  // namespace desk
