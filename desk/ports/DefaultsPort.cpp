#include "desk/ports/DefaultsPort.h"

#include <utility>

#include "desk/processes/LaunchedApplication.h"

namespace desk {

std::optional<std::string> DefaultsPort::stringForKey(const std::string& key) {
    const platform::Value* value = platform::find(domain, key);
    const auto* text = value == nullptr ? nullptr : value->as<std::string>();
    if (text == nullptr) return std::nullopt;
    return *text;
}

void DefaultsPort::setObject(const std::string& key, platform::Value value) {
    if (!application.isDead()) domain.insert_or_assign(key, std::move(value));
}

}  // namespace desk
