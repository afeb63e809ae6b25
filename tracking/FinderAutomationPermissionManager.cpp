#include "tracking/FinderAutomationPermissionManager.h"

#include <algorithm>
#include <iterator>

#include "platform/URL.h"

namespace brindle {

namespace {

using Status = FinderAutomationPermissionManager::Status;

constexpr const char* finderIdentifier = "com.apple.finder";
constexpr const char* automationPane = "x-apple.systempreferences:com.apple.preference.security?Privacy_Automation";
constexpr const char* systemSettings = "/System/Applications/System Settings.app";

Status statusOf(std::int32_t code) {
    switch (code) {
    case platform::noErr:
        return Status::allowed;
    case platform::errAEEventWouldRequireUserConsent:
        return Status::notChecked;
    case platform::errAEEventNotPermitted:
        return Status::denied;
    case platform::procNotFound:
        return Status::failedWith("Open Finder, then try again.");
    default:
        return Status::failedWith("Finder access could not be verified. Error " + std::to_string(code) + ".");
    }
}

}  // namespace

void FinderAutomationPermissionManager::refresh() {
    if (isRequesting.get() || refreshing) return;
    refreshing = true;
    determinePermission(false, lifetime.guard([this](std::int32_t code) {
        refreshing = false;
        apply(code);
    }));
}

void FinderAutomationPermissionManager::requestAccess() {
    if (isRequesting.get()) return;
    isRequesting.set(true);
    determinePermission(true, lifetime.guard([this](std::int32_t code) {
        isRequesting.set(false);
        apply(code);
    }));
}

// Also when nothing has changed: whoever waits for the outcome of a check hears of it.
void FinderAutomationPermissionManager::apply(std::int32_t code) {
    status.set(statusOf(code));
}

// About any event to Finder, not a particular one. What runs off the main thread touches nothing of this object.
void FinderAutomationPermissionManager::determinePermission(bool askUserIfNeeded,
                                                            std::function<void(std::int32_t code)> completion) {
    platform.dispatch.mainTask([&platform = platform, askUserIfNeeded, completion = std::move(completion)] {
        const auto ask = [&platform, askUserIfNeeded, completion] {
            const auto pool = platform.dispatch.makeAutoreleasePool();
            const auto target = platform::NSAppleEventDescriptor::descriptorWithBundleIdentifier(finderIdentifier);
            const std::int32_t code = platform.appleEvents.AEDeterminePermissionToAutomateTarget(
                target, platform::typeWildCard, platform::typeWildCard, askUserIfNeeded);
            platform.dispatch.mainTask([completion, code] { completion(code); });
        };
        platform.dispatch.detachedTask(platform::QualityOfService::userInitiated, ask);
    });
}

void FinderAutomationPermissionManager::openSystemSettings() {
    const auto url = platform::URLWithString(automationPane);
    if (url && platform.workspace.openURL(*url)) return;
    platform.workspace.openApplicationAtURL(systemSettings);
}

}  // namespace brindle
