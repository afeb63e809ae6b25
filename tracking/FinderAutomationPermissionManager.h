// Whether the user lets the application send Apple Events to Finder, as values to subscribe to. The onboarding guide has it checked and asked for. It asks the platform off the main
// thread, since that waits for as long as the user takes, and never by itself. Main thread only.
//
//   status   left by the answer of any check, which may come to any of them again
//   flags    isRequesting from requestAccess() to its answer, isRefreshing from refresh() to its own; of the two answers the later one stays
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "platform/Lifetime.h"
#include "platform/Platform.h"

namespace brindle {

class FinderAutomationPermissionManager : public platform::ObservableObject {
public:
    // As last known; `notChecked` also while the user hasn't been asked yet.
    struct Status {
        enum Kind { notChecked, allowed, denied, failed };

        Status(Kind theKind) : kind(theKind) {}  // NOLINT(google-explicit-constructor)
        static Status failedWith(std::string message) {
            Status status(failed);
            status.message = std::move(message);
            return status;
        }
        friend bool operator==(const Status&, const Status&) = default;

        Kind kind;
        std::string message;  // of `failed`, for the user
    };

    explicit FinderAutomationPermissionManager(platform::Platform& thePlatform) : platform(thePlatform) {}

    platform::Published<Status, FinderAutomationPermissionManager> status{*this, Status::notChecked};
    platform::Published<bool, FinderAutomationPermissionManager> isRequesting{*this, false};
    bool isRefreshing() const { return refreshing; }

    // A check that never prompts. Nothing while any check is under way.
    void refresh();
    // A check that may prompt the user. Nothing while another such is under way.
    void requestAccess();
    // The Automation pane, or System Settings as they come up if that can't be opened.
    void openSystemSettings();

private:
    void apply(std::int32_t code);
    void determinePermission(bool askUserIfNeeded, std::function<void(std::int32_t code)> completion);

    platform::Platform& platform;
    bool refreshing = false;
    platform::Lifetime lifetime;
};

}  // namespace brindle
