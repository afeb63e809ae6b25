// The settings window: resizable, built when it is first shown, and kept. What it says, and what its switches and cards
// do, is OrvaneSettingsView's affair. Main thread only.
#pragma once

#include <memory>

#include "app/OrdinaryWindowController.h"
#include "services/AnalyticsService.h"
#include "services/LaunchAtLoginManager.h"

namespace brindle {

class SettingsWindowController final : public OrdinaryWindowController {
public:
    SettingsWindowController(platform::Platform& thePlatform,
                             std::shared_ptr<LaunchAtLoginManager> theLaunchAtLoginManager,
                             AnalyticsService& theAnalyticsService);

private:
    std::unique_ptr<platform::ContentView> makeContentView() override;
    Description description() const override;

    const std::shared_ptr<LaunchAtLoginManager> launchAtLoginManager;
    AnalyticsService& analyticsService;
};

}  // namespace brindle
