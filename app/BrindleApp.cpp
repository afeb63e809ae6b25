#include "app/BrindleApp.h"

#include "app/MenuBarIcon.h"
#include "app/OrvaneMenuView.h"

namespace brindle {

std::unique_ptr<OrvaneApp> OrvaneApp::main(platform::Platform& platform) {
    return std::make_unique<OrvaneApp>(platform);
}

views::MenuBarExtra OrvaneApp::body() {
    // The guide and the settings window aren't there yet.
    const auto nothing = [] {};
    return views::MenuBarExtra(
               [this, nothing] {
                   return OrvaneMenuView{views::ObservedObject<AccessibilityManager>(appDelegate.accessibility()),
                                         views::ObservedObject<UpdateManager>(appDelegate.updates()),
                                         nothing,
                                         nothing,
                                         [this] { appDelegate.showAbout(); },
                                         [this] { appDelegate.quit(); }};
               },
               views::Image(MenuBarIcon::image()).accessibilityLabel("Orvane"))
        .menuBarExtraStyle(views::MenuBarExtraStyle::menu);
}

}  // namespace brindle
