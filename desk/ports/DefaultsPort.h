// The user defaults of one application: those of its domain, which lie with the machine.
#pragma once

#include <string>

#include "platform/Defaults.h"

namespace desk {

class LaunchedApplication;

class DefaultsPort final : public platform::NSUserDefaults {
public:
    DefaultsPort(platform::Dictionary& theDomain, const LaunchedApplication& theApplication)
        : domain(theDomain), application(theApplication) {}

    std::optional<platform::Value> objectForKey(const std::string& key) override;
    void registerDefaults(const platform::Dictionary& defaults) override;
    std::optional<std::string> stringForKey(const std::string& key) override;
    bool boolForKey(const std::string& key) override;
    void setObject(const std::string& key, platform::Value value) override;

private:
    // Null when nothing is stored or registered.
    const platform::Value* entry(const std::string& key) const;

    platform::Dictionary& domain;
    platform::Dictionary registered;
    const LaunchedApplication& application;
};

}  // namespace desk
