// System Settings as an application of the machine: started by its bundle, by an address that names a pane, or by a prompt. It holds no setting; switches act on the permissions.
#pragma once

#include <cstdint>
#include <string>

namespace desk {

class Activation;
class Applications;
class Disk;
class Permissions;
class SettingsProgram;

class SystemSettings {
public:
    SystemSettings(Disk& theDisk, Applications& theApplications, Activation& theActivation, Permissions& thePermissions)
        : disk(theDisk), applications(theApplications), activation(theActivation), permissions(thePermissions) {}

    // In front, started if it doesn't run. The pane is the one that the address ends with; without one that is known, the pane stays.
    void open(const std::string& address);
    // Null while it doesn't run.
    const SettingsProgram* program() const;
    std::int32_t processIdentifier() const { return process; }

private:
    Disk& disk;
    Applications& applications;
    Activation& activation;
    Permissions& permissions;
    std::int32_t process = 0;  // the one that was started last
};

}  // namespace desk
