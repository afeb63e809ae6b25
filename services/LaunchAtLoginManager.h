// Keeps the system's login item in line with one stored preference, and says in a sentence what the user has to do when the system refuses. It tries nothing twice: the next launch or the next
// change of the preference does. Main thread only.
#pragma once

#include <optional>
#include <string>

#include "platform/Platform.h"

namespace brindle {

class LaunchAtLoginManager final : public platform::ObservableObject {
public:
    explicit LaunchAtLoginManager(platform::Platform& thePlatform) : platform(thePlatform) {}

    // What the user wants, whatever the system has made of it.
    platform::Published<bool, LaunchAtLoginManager> isEnabled{*this, true};
    platform::Published<std::optional<std::string>, LaunchAtLoginManager> statusMessage{*this, std::nullopt};
    const std::string preferenceKey = "launchAtLoginEnabled";

    // Once at launch: the preference is on unless something is stored.
    void configureDefault();
    void setEnabled(bool enabled);
    void updateStatusMessage(platform::SMAppServiceStatus status);

private:
    void applyCurrentPreference();
    // Registers or unregisters where the status asks for it; the message of a refusal.
    std::optional<std::string> adjust(platform::SMAppService& service) const;

    platform::Platform& platform;
};

}  // namespace brindle
