// The running application's own bundle: who it says it is, where it stands, what it brings along. Main thread only.
#pragma once

#include <optional>
#include <string>

#include "platform/Dictionary.h"

namespace platform {

class NSBundle {
public:
    virtual ~NSBundle() = default;
    virtual std::optional<std::string> bundleIdentifier() = 0;
    // The path as it was launched: links aren't resolved.
    virtual std::string bundleURL() = 0;
    virtual std::optional<Value> objectForInfoDictionaryKey(const std::string& key) = 0;
    // The path of a file among the bundle's resources; empty when it isn't there.
    virtual std::optional<std::string> URLForResource(const std::string& name, const std::string& withExtension) = 0;
    std::optional<std::string> pathForResource(const std::string& name, const std::string& ofType) {
        return URLForResource(name, ofType);
    }
};

}  // namespace platform
