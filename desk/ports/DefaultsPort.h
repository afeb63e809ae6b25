// The user defaults of one application, as they were stored before its launch and as it has stored them since.
#pragma once

#include <string>
#include <utility>

#include "platform/Defaults.h"

namespace desk {

class DefaultsPort final : public platform::NSUserDefaults {
public:
    explicit DefaultsPort(platform::Dictionary storedBefore) : stored(std::move(storedBefore)) {}

    std::optional<std::string> stringForKey(const std::string& key) override;
    void setObject(const std::string& key, platform::Value value) override;

    const platform::Dictionary& storedValues() const { return stored; }

private:
    platform::Dictionary stored;
};

}  // namespace desk
