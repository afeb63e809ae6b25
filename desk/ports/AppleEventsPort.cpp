#include "desk/ports/AppleEventsPort.h"

#include "desk/finder/FinderScripting.h"
#include "desk/finder/ScriptSender.h"
#include "desk/processes/Faults.h"
#include "desk/processes/Journal.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/processes/Permissions.h"
#include "desk/processes/Processes.h"
#include "desk/time/WorkerQueue.h"

namespace desk {

using platform::OSStatus;

namespace {

constexpr OSStatus connectionInvalid = -609;

}  // namespace

std::unique_ptr<platform::NSAppleScript> AppleEventsPort::makeAppleScript(const std::string& source) {
    return scripting.makeScript(application, source);
}

OSStatus AppleEventsPort::AEDeterminePermissionToAutomateTarget(const platform::NSAppleEventDescriptor& target,
                                                                std::uint32_t /*eventClass*/, std::uint32_t /*eventID*/,
                                                                bool askUserIfNeeded) {
    const WorkerQueue::Visit visit;
    ScriptSender sender(permissions, application);
    if (sender.isGone()) return connectionInvalid;
    journal.note(application.processIdentifier(), askUserIfNeeded ? "automation request" : "automation query");
    const platform::Duration latency = faults.automationLatency;
    const OSStatus answer =
        faults.automationCode ? *faults.automationCode : permissionFor(target, askUserIfNeeded, sender);
    return sender.wait(latency) ? answer : connectionInvalid;
}

// The machine knows the permission for Finder alone.
OSStatus AppleEventsPort::permissionFor(const platform::NSAppleEventDescriptor& target, bool askUserIfNeeded,
                                        ScriptSender& sender) {
    if (processes.findByBundleIdentifier(target.bundleIdentifier) == nullptr) return platform::procNotFound;
    if (permissions.automation == AutomationPermission::ask) {
        if (!askUserIfNeeded) return platform::errAEEventWouldRequireUserConsent;
        sender.waitForAutomationAnswer();
    }
    return permissions.automation == AutomationPermission::allowed ? platform::noErr : platform::errAEEventNotPermitted;
}

}  // namespace desk
