// What the settings window shows: two switches, and a card for each style of the bar. Each acts at once, on the objects
// that own the settings; the view keeps none itself.
#pragma once

#include <vector>

#include "pathbar/PathBarDesignManager.h"
#include "services/AnalyticsService.h"
#include "services/LaunchAtLoginManager.h"
#include "views/Views.h"

namespace brindle {

class OrvaneSettingsView {
public:
    OrvaneSettingsView(platform::Platform& thePlatform, LaunchAtLoginManager& theLaunchAtLoginManager,
                       AnalyticsService& theAnalyticsService)
        : platform(thePlatform),
          launchAtLoginManager(theLaunchAtLoginManager),
          analyticsService(theAnalyticsService),
          designManager(thePlatform.shared<PathBarDesignManager>()) {}

    void connect(views::Context& context) { context.connect(launchAtLoginManager, analyticsService, designManager); }
    views::View body() const;

private:
    views::View generalSection() const;
    views::View loginItemMessage(const std::string& message) const;
    views::View designSection() const;

    platform::Platform& platform;
    views::ObservedObject<LaunchAtLoginManager> launchAtLoginManager;
    views::ObservedObject<AnalyticsService> analyticsService;
    views::ObservedObject<PathBarDesignManager> designManager;
    std::vector<views::GridItem> columns{2, {.spacing = 12}};
};

}  // namespace brindle
