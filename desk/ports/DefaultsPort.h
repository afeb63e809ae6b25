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

    std::optional<std::string> stringForKey(const std::string& key) override;
    bool boolForKey(const std::string& key) override;
    void setObject(const std::string& key, platform::Value value) override;

private:
    platform::Dictionary& domain;
    const LaunchedApplication& application;
};

}  // namespace desk
