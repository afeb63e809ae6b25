#include "app/BrindleApp.h"

#include "app/MenuBarIcon.h"
#include "app/OrvaneMenuView.h"

namespace brindle {

std::unique_ptr<OrvaneApp> OrvaneApp::main(platform::Platform& platform) {
    return std::make_unique<OrvaneApp>(platform);
}

views::MenuBarExtra OrvaneApp::body() {
    return views::MenuBarExtra(
               [this] {
                   return OrvaneMenuView{views::ObservedObject<AccessibilityManager>(appDelegate.accessibility()),
                                         views::ObservedObject<UpdateManager>(appDelegate.updates()),
                                         [this] { appDelegate.showPermissionGuide(); },
                                         [this] { appDelegate.showSettings(); },
                                         [this] { appDelegate.showAbout(); },
                                         [this] { appDelegate.quit(); }};
               },
               views::Image(MenuBarIcon::image()).accessibilityLabel("Orvane"))
        .menuBarExtraStyle(views::MenuBarExtraStyle::menu);
}

}  // namespace brindle
