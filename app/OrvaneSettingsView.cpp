#include "app/OrvaneSettingsView.h"

#include <utility>

#include "app/DesignChoiceCard.h"
#include "app/SettingsSection.h"

namespace brindle {

using namespace views;

View OrvaneSettingsView::body() const {
    View general = SettingsSection{"General", "gearshape", [this] { return generalSection(); }};
    View designs = SettingsSection{"Address Bar Style", "paintbrush", [this] { return designSection(); }};
    return VStack({.alignment = HorizontalAlignment::leading, .spacing = 0},
                  std::move(general).padding({.top = 20, .leading = 24, .bottom = 16, .trailing = 24}), Divider(),
                  ScrollView(std::move(designs).padding(24)))
        .frame({.maxWidth = infinity, .maxHeight = infinity})
        .background(Color::of(ColorRole::windowBackground));
}

View OrvaneSettingsView::generalSection() const {
    View section = VStack(
        {.alignment = HorizontalAlignment::leading, .spacing = 8},
        Toggle("Launch Orvane at login", {[this] { return launchAtLoginManager->isEnabled.get(); },
                                          [this](bool isOn) { launchAtLoginManager->setEnabled(isOn); }}),
        Toggle("Share anonymous usage analytics", {[this] { return analyticsService->isEnabled.get(); },
                                                   [this](bool isOn) { analyticsService->setEnabled(isOn); }}),
        Text("Shares daily active use, app version, and approximate country or region. Finder paths, file names, and "
             "personal information are never sent.")
            .font({11})
            .foregroundStyle(ColorRole::secondary));
    if (const auto& message = launchAtLoginManager->statusMessage.get())
        section.addChildren(loginItemMessage(*message));
    return section;
}

View OrvaneSettingsView::loginItemMessage(const std::string& message) const {
    return HStack({}, Text(message).font({12}).foregroundStyle(ColorRole::secondary), Spacer(),
                  Button("Open System Settings", [this] {
                      platform.loginItem.openSystemSettingsLoginItems();
                  }).buttonStyle(ButtonStyle::bordered));
}

View OrvaneSettingsView::designSection() const {
    std::vector<View> cards;
    for (const PathBarDesign design : allPathBarDesigns)
        cards.emplace_back(DesignChoiceCard{design, design == designManager->selectedDesign.get(),
                                            [this, design] { designManager->select(design); }});
    return VStack({.alignment = HorizontalAlignment::leading, .spacing = 12},
                  Text("The selected style is applied to all open Finder address bars immediately.")
                      .font({12})
                      .foregroundStyle(ColorRole::secondary),
                  LazyVGrid({.columns = columns, .spacing = 12}, std::move(cards)));
}

}  // namespace brindle
