// The window of System Settings: the list of panes on the left, the chosen one beside it. A switch is the permission, or the status of the login item, itself.
#pragma once

#include <utility>

#include "desk/settings/SettingsModel.h"
#include "platform/Images.h"
#include "views/Views.h"

namespace desk {

inline constexpr platform::CGSize settingsSize{640, 400};  // of the content

class SettingsView {
public:
    SettingsView(SettingsModel& theModel, platform::NSImage iconOfApplication)
        : model(theModel), icon(std::move(iconOfApplication)) {}

    void connect(views::Context& context) { context.connect(model); }
    views::View body() const;

private:
    views::View sidebar() const;
    views::View application() const;
    views::View accessibility() const;
    views::View automation() const;
    views::View loginItems() const;

    struct Pane;
    static const Pane panes[];

    views::ObservedObject<SettingsModel> model;
    platform::NSImage icon;
};

}  // namespace desk
