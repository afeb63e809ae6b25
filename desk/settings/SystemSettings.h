// System Settings as an application of the machine: started by its bundle, by an address that names a pane, or by a prompt. It holds no setting; switches act on the permissions and the login item.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/Token.h"

namespace desk {

class Applications;
class Disk;
class LaunchServices;
class LoginItem;
class Permissions;
class SettingsProgram;

class SystemSettings {
public:
    SystemSettings(Disk& theDisk, Applications& theApplications, LaunchServices& theLaunchServices,
                   Permissions& thePermissions, LoginItem& theLoginItem);

    // Null while it doesn't run.
    const SettingsProgram* program() const;
    std::int32_t processIdentifier() const { return process; }

private:
    void start();
    // In front, started if it doesn't run. The pane is the one that the address ends with; if none is known by it, the pane stays.
    void open(std::string_view address);

    Disk& disk;
    Applications& applications;
    LaunchServices& launchServices;
    Permissions& permissions;
    LoginItem& loginItem;
    std::int32_t process = 0;  // the one that was started last
    platform::Token accessibilityWanted;
    platform::Token loginItemsWanted;
};

}  // namespace desk
