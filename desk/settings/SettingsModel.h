// What the window of System Settings shows: which pane, and the permissions as they stand. A change of a permission, whoever makes it, counts as a change of the model.
#pragma once

#include "desk/processes/Permissions.h"
#include "platform/Published.h"

namespace desk {

enum class SettingsPane { accessibility, automation };

class SettingsModel final : public platform::ObservableObject {
public:
    explicit SettingsModel(Permissions& thePermissions)
        : permissions(thePermissions), subscription(permissions.changed.subscribe([this] { notifyChanged(); })) {}

    platform::Published<SettingsPane> pane{*this, SettingsPane::accessibility};
    Permissions& permissions;

private:
    platform::Token subscription;
};

}  // namespace desk
