// The application's user defaults: what is stored, over what is registered. Main thread only.
#pragma once

#include <optional>
#include <string>

#include "platform/Dictionary.h"

namespace platform {

class NSUserDefaults {
public:
    virtual ~NSUserDefaults() = default;
    // Empty when nothing is stored or registered, or it isn't text.
    virtual std::optional<std::string> stringForKey(const std::string& key) = 0;
    // Booleans, numbers other than 0, and the texts "YES", "true" and such numbers count as true, whatever their case; anything else is false.
    virtual bool boolForKey(const std::string& key) = 0;
    // Empty when nothing is stored or registered.
    virtual std::optional<Value> objectForKey(const std::string& key) = 0;
    // What counts in this process where nothing is stored. Nothing is written.
    virtual void registerDefaults(const Dictionary& registered) = 0;
    // A failed write loses that preference and nothing else.
    virtual void setObject(const std::string& key, Value value) = 0;
};

}  // namespace platform
