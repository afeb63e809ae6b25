// What the menu of the menu-bar item holds. It decides nothing: its rows call back. When it comes up it has the trust read anew, so that the first row is right.
#pragma once

#include <functional>

#include "services/UpdateManager.h"
#include "tracking/AccessibilityManager.h"
#include "views/Views.h"

namespace brindle {

struct OrvaneMenuView {
    views::ObservedObject<AccessibilityManager> accessibilityManager;
    views::ObservedObject<UpdateManager> updateManager;
    std::function<void()> showPermissionGuide;
    std::function<void()> showSettings;
    std::function<void()> showAbout;
    std::function<void()> quit;

    void connect(views::Context& context) { context.connect(accessibilityManager, updateManager); }
    views::View body() const;

private:
    views::View updateRow() const;
};

}  // namespace brindle
