#include "desk/processes/Bundle.h"

#include "desk/disk/Disk.h"
#include "desk/disk/PropertyList.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

std::optional<std::string> textIn(const platform::Dictionary& info, std::string_view key) {
    const platform::Value* entry = platform::find(info, key);
    const auto* text = entry == nullptr ? nullptr : entry->as<std::string>();
    if (text == nullptr || text->empty()) return std::nullopt;
    return *text;
}

platform::Dictionary infoAt(const Disk& disk, const std::string& path) {
    const auto file = disk.read(path + "/Contents/Info.plist");
    const auto read = file ? readPropertyList(*file) : std::nullopt;
    const auto* dictionary = read ? read->as<platform::Dictionary>() : nullptr;
    return dictionary == nullptr ? platform::Dictionary() : *dictionary;
}

}  // namespace

std::optional<std::string> Bundle::identifier() const {
    return textIn(info, "CFBundleIdentifier");
}

std::string Bundle::name() const {
    if (auto told = textIn(info, "CFBundleName")) return *told;
    const std::string_view folder = platform::lastPathComponent(path);
    return std::string(folder.ends_with(".app") ? folder.substr(0, folder.size() - 4) : folder);
}

std::string Bundle::defaultsDomain() const {
    return identifier().value_or(path);
}

Bundle bundleAt(const Disk& disk, const std::string& path, const platform::Dictionary& over) {
    Bundle bundle{path, infoAt(disk, path)};
    for (const auto& [key, value] : over) {
        bundle.info.erase(key);
        if (!value.isNull()) bundle.info.emplace(key, value);
    }
    return bundle;
}

}  // namespace desk
