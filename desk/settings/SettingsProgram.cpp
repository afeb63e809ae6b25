#include "desk/settings/SettingsProgram.h"

#include "desk/settings/SettingsView.h"

namespace desk {

namespace {

constexpr const char* applicationIconPath = "/Applications/Orvane.app/Contents/Resources/AppIcon.png";

}  // namespace

void SettingsProgram::show(std::optional<SettingsPane> pane) {
    if (pane) model.pane.setIfChanged(*pane);
    if (!window) makeWindow();
    window->makeKeyAndOrderFront();
}

void SettingsProgram::makeWindow() {
    using namespace platform::NSWindowStyleMask;
    window = std::make_shared<platform::NSWindow>(platform, platform::CGRect{{}, settingsSize},
                                                  titled | closable | miniaturizable,
                                                  platform::NSBackingStoreType::buffered, false);
    window->setTitle("System Settings");
    window->setDelegate(this);
    const auto icon = platform.images.imageWithContentsOf(applicationIconPath);
    window->setContentView(std::make_unique<views::NSHostingView<SettingsView>>(
        platform, SettingsView(model, icon.value_or(platform::NSImage()))));
    window->center();
}

void SettingsProgram::windowWillClose() {
    platform.dispatch.mainAsync([this] { platform.application.terminate(); });
}

}  // namespace desk
