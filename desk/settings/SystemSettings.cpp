#include "desk/settings/SystemSettings.h"

#include <optional>
#include <string_view>
#include <utility>

#include "desk/processes/Activation.h"
#include "desk/processes/Applications.h"
#include "desk/processes/KnownApplications.h"
#include "desk/settings/SettingsProgram.h"

namespace desk {

namespace {

constexpr std::pair<std::string_view, SettingsPane> anchors[] = {
    {"?Privacy_Accessibility", SettingsPane::accessibility}, {"?Privacy_Automation", SettingsPane::automation}};

std::optional<SettingsPane> paneOf(std::string_view address) {
    for (const auto& [anchor, pane] : anchors)
        if (address.ends_with(anchor)) return pane;
    return std::nullopt;
}

SettingsProgram& programIn(const LaunchedApplication& application) {
    return static_cast<SettingsProgram&>(*application.program());
}

}  // namespace

void SystemSettings::open(const std::string& address) {
    LaunchedApplication* running = applications.find(process);
    if (running == nullptr) {
        const Bundle bundle =
            bundleAt(disk, systemSettingsPath, {{"CFBundleIdentifier", "com.apple.systempreferences"}});
        running = &applications.launch(bundle, [this](platform::Platform& platform) {
            return std::make_unique<SettingsProgram>(platform, permissions);
        });
        process = running->processIdentifier();
    }
    running->loop().mainAsync([running, pane = paneOf(address)] { programIn(*running).show(pane); });
    activation.activate(process, true);
}

const SettingsProgram* SystemSettings::program() const {
    const LaunchedApplication* running = applications.find(process);
    return running == nullptr ? nullptr : &programIn(*running);
}

}  // namespace desk
