#include "desk/settings/SystemSettings.h"

#include <optional>
#include <string_view>
#include <utility>

#include "desk/processes/Applications.h"
#include "desk/processes/KnownApplications.h"
#include "desk/processes/LaunchServices.h"
#include "desk/processes/LoginItem.h"
#include "desk/processes/Permissions.h"
#include "desk/settings/SettingsProgram.h"

namespace desk {

namespace {

constexpr const char* accessibilityAnchor = "?Privacy_Accessibility";
constexpr const char* loginItemsAnchor = "com.apple.LoginItems-Settings.extension";
constexpr std::pair<std::string_view, SettingsPane> anchors[] = {{accessibilityAnchor, SettingsPane::accessibility},
                                                                 {"?Privacy_Automation", SettingsPane::automation},
                                                                 {loginItemsAnchor, SettingsPane::loginItems}};

std::optional<SettingsPane> paneOf(std::string_view address) {
    for (const auto& [anchor, pane] : anchors)
        if (address.ends_with(anchor)) return pane;
    return std::nullopt;
}

SettingsProgram& programIn(const LaunchedApplication& application) {
    return static_cast<SettingsProgram&>(*application.program());
}

}  // namespace

SystemSettings::SystemSettings(Disk& theDisk, Applications& theApplications, LaunchServices& theLaunchServices,
                               Permissions& thePermissions, LoginItem& theLoginItem)
    : disk(theDisk),
      applications(theApplications),
      launchServices(theLaunchServices),
      permissions(thePermissions),
      loginItem(theLoginItem),
      accessibilityWanted(permissions.accessibilitySettingsWanted.subscribe([this] { open(accessibilityAnchor); })),
      loginItemsWanted(loginItem.settingsWanted.subscribe([this] { open(loginItemsAnchor); })) {
    launchServices.addOwnApplication(systemSettingsPath, [this] { start(); });
    launchServices.addAddressHandler("x-apple.systempreferences:", [this](const std::string& url) { open(url); });
}

void SystemSettings::start() {
    const Bundle bundle = bundleAt(disk, systemSettingsPath, {{"CFBundleIdentifier", "com.apple.systempreferences"}});
    LaunchedApplication& started = applications.launch(bundle, [this](platform::Platform& platform) {
        return std::make_unique<SettingsProgram>(platform, permissions, loginItem);
    });
    process = started.processIdentifier();
}

void SystemSettings::open(std::string_view address) {
    launchServices.openApplication(systemSettingsPath);
    LaunchedApplication* running = applications.find(process);
    if (running != nullptr)
        running->loop().mainAsync([running, pane = paneOf(address)] { programIn(*running).show(pane); });
}

const SettingsProgram* SystemSettings::program() const {
    const LaunchedApplication* running = applications.find(process);
    return running == nullptr ? nullptr : &programIn(*running);
}

}  // namespace desk
