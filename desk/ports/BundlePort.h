// The bundle that one application was launched from: its Info dictionary as it was at the launch, its files as they are.
#pragma once

#include "desk/disk/Disk.h"
#include "desk/processes/Bundle.h"
#include "platform/Bundle.h"

namespace desk {

class BundlePort final : public platform::NSBundle {
public:
    BundlePort(const Bundle& theBundle, const Disk& theDisk) : bundle(theBundle), disk(theDisk) {}

    std::optional<std::string> bundleIdentifier() override { return bundle.identifier(); }
    std::string bundleURL() override { return bundle.path; }
    std::optional<platform::Value> objectForInfoDictionaryKey(const std::string& key) override {
        const platform::Value* value = platform::find(bundle.info, key);
        return value == nullptr ? std::nullopt : std::optional(*value);
    }
    std::optional<std::string> URLForResource(const std::string& name, const std::string& withExtension) override {
        std::string file = bundle.path + "/Contents/Resources/" + name + "." + withExtension;
        return disk.kind(file) ? std::optional(std::move(file)) : std::nullopt;
    }

private:
    const Bundle& bundle;
    const Disk& disk;
};

}  // namespace desk
