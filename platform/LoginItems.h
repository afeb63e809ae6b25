// The login item of the running application: whether the system opens it when its user logs in. Calls are synchronous. Main thread only.
#pragma once

#include <optional>
#include <string>

namespace platform {

enum class SMAppServiceStatus { notRegistered = 0, enabled = 1, requiresApproval = 2, notFound = 3 };

// SMAppService.mainApp.
class SMAppService {
public:
    virtual ~SMAppService() = default;
    virtual SMAppServiceStatus status() = 0;
    // The error's localizedDescription; empty when the call succeeded. The status needn't have changed then.
    virtual std::optional<std::string> registerAndReturnError() = 0;
    virtual std::optional<std::string> unregisterAndReturnError() = 0;
    // Shows the pane of the login items.
    virtual void openSystemSettingsLoginItems() = 0;
};

}  // namespace platform
