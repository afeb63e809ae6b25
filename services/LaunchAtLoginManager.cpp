#include "services/LaunchAtLoginManager.h"

namespace brindle {

using platform::SMAppServiceStatus;

void LaunchAtLoginManager::configureDefault() {
    if (!platform.defaults.objectForKey(preferenceKey)) platform.defaults.setObject(preferenceKey, true);
    isEnabled.setIfChanged(platform.defaults.boolForKey(preferenceKey));
    applyCurrentPreference();
}

void LaunchAtLoginManager::setEnabled(bool enabled) {
    isEnabled.setIfChanged(enabled);
    platform.defaults.setObject(preferenceKey, enabled);
    applyCurrentPreference();
}

void LaunchAtLoginManager::applyCurrentPreference() {
    platform::SMAppService& service = platform.loginItem;
    if (auto refusal = adjust(service))
        statusMessage.setIfChanged(std::move(refusal));
    else
        updateStatusMessage(service.status());
}

std::optional<std::string> LaunchAtLoginManager::adjust(platform::SMAppService& service) const {
    const SMAppServiceStatus status = service.status();
    if (isEnabled.get()) {
        const bool isMissing = status == SMAppServiceStatus::notRegistered || status == SMAppServiceStatus::notFound;
        return isMissing ? service.registerAndReturnError() : std::nullopt;
    }
    return status == SMAppServiceStatus::notRegistered ? std::nullopt : service.unregisterAndReturnError();
}

void LaunchAtLoginManager::updateStatusMessage(SMAppServiceStatus status) {
    if (status == SMAppServiceStatus::notFound)
        statusMessage.setIfChanged("Move Orvane to the Applications folder.");
    else if (status == SMAppServiceStatus::requiresApproval)
        statusMessage.setIfChanged("Allow Orvane in System Settings > Login Items.");
    else
        statusMessage.setIfChanged(std::nullopt);
}

}  // namespace brindle
