// AppleScript as one application sends it, and what the user lets it do to others; the scripts of one that has ended answer an error and reach nobody.
#pragma once

#include "platform/AppleEvents.h"

namespace desk {

class Faults;
class FinderScripting;
class Journal;
class LaunchedApplication;
class Permissions;
class Processes;
class ScriptSender;

class AppleEventsPort final : public platform::AppleEvents {
public:
    AppleEventsPort(FinderScripting& theScripting, Processes& theProcesses, Permissions& thePermissions,
                    Faults& theFaults, Journal& theJournal, LaunchedApplication& theApplication)
        : scripting(theScripting),
          processes(theProcesses),
          permissions(thePermissions),
          faults(theFaults),
          journal(theJournal),
          application(theApplication) {}

    std::unique_ptr<platform::NSAppleScript> makeAppleScript(const std::string& source) override;
    platform::OSStatus AEDeterminePermissionToAutomateTarget(const platform::NSAppleEventDescriptor& target,
                                                             std::uint32_t eventClass, std::uint32_t eventID,
                                                             bool askUserIfNeeded) override;

private:
    platform::OSStatus permissionFor(const platform::NSAppleEventDescriptor& target, bool askUserIfNeeded,
                                     ScriptSender& sender);

    FinderScripting& scripting;
    Processes& processes;
    Permissions& permissions;
    Faults& faults;
    Journal& journal;
    LaunchedApplication& application;
};

}  // namespace desk
