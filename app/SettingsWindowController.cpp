#include "app/SettingsWindowController.h"

#include <utility>

#include "app/OrvaneSettingsView.h"

namespace brindle {

SettingsWindowController::SettingsWindowController(platform::Platform& thePlatform,
                                                   std::shared_ptr<LaunchAtLoginManager> theLaunchAtLoginManager,
                                                   AnalyticsService& theAnalyticsService)
    : OrdinaryWindowController(thePlatform),
      launchAtLoginManager(std::move(theLaunchAtLoginManager)),
      analyticsService(theAnalyticsService) {}

std::unique_ptr<platform::ContentView> SettingsWindowController::makeContentView() {
    return std::make_unique<views::NSHostingView<OrvaneSettingsView>>(
        platform, OrvaneSettingsView(platform, *launchAtLoginManager, analyticsService));
}

OrdinaryWindowController::Description SettingsWindowController::description() const {
    using namespace platform::NSWindowStyleMask;
    return {.title = "Orvane Settings",
            .contentSize = {680, 650},
            .styleMask = titled | closable | miniaturizable | resizable,
            .minSize = platform::CGSize{600, 520}};
}

}  // namespace brindle
