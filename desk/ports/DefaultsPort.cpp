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

const platform::Value* DefaultsPort::entry(const std::string& key) const {
    const platform::Value* stored = platform::find(domain, key);
    return stored == nullptr ? platform::find(registered, key) : stored;
}

std::optional<platform::Value> DefaultsPort::objectForKey(const std::string& key) {
    const platform::Value* stored = entry(key);
    return stored == nullptr ? std::nullopt : std::optional(*stored);
}

void DefaultsPort::registerDefaults(const platform::Dictionary& defaults) {
    for (const auto& [key, each] : defaults) registered.insert_or_assign(key, each);
}

std::optional<std::string> DefaultsPort::stringForKey(const std::string& key) {
    const platform::Value* stored = entry(key);
    const auto* text = stored == nullptr ? nullptr : stored->as<std::string>();
    if (text == nullptr) return std::nullopt;
    return *text;
}

bool DefaultsPort::boolForKey(const std::string& key) {
    const platform::Value* stored = entry(key);
    if (stored == nullptr) return false;
    if (const auto* text = stored->as<std::string>()) return isTrue(*text);
    return stored->number().value_or(0) != 0;
}

void DefaultsPort::setObject(const std::string& key, platform::Value value) {
    if (!application.isDead()) domain.insert_or_assign(key, std::move(value));
}

}  // namespace desk
