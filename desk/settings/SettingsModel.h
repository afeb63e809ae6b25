// What the window of System Settings shows: which pane, the permissions and the login item as they stand. A change of these, whoever makes it, counts as a change of the model.
#pragma once

#include "desk/processes/LoginItem.h"
#include "desk/processes/Permissions.h"
#include "platform/Published.h"

namespace desk {

enum class SettingsPane { accessibility, automation, loginItems };

class SettingsModel final : public platform::ObservableObject {
public:
    SettingsModel(Permissions& thePermissions, LoginItem& theLoginItem)
        : permissions(thePermissions),
          loginItem(theLoginItem),
          permissionsChanged(permissions.changed.subscribe([this] { notifyChanged(); })),
          loginItemChanged(loginItem.changed.subscribe([this] { notifyChanged(); })) {}

    platform::Published<SettingsPane> pane{*this, SettingsPane::accessibility};
    Permissions& permissions;
    LoginItem& loginItem;

private:
    platform::Token permissionsChanged;
    platform::Token loginItemChanged;
};

}  // namespace desk
