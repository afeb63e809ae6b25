// What runs in System Settings: one window, built when it is first shown. It ends when the window closes, as on a Mac; what it shows lies elsewhere.
#pragma once

#include <memory>
#include <optional>

#include "desk/processes/LaunchedApplication.h"
#include "desk/settings/SettingsModel.h"
#include "platform/Platform.h"

namespace desk {

class SettingsProgram final : public Program, platform::NSApplicationDelegate, platform::NSWindowDelegate {
public:
    SettingsProgram(platform::Platform& thePlatform, Permissions& permissions, LoginItem& loginItem)
        : platform(thePlatform), model(permissions, loginItem) {}

    // In a turn of the application. Without a pane, the one that was shown last stays.
    void show(std::optional<SettingsPane> pane);
    SettingsPane pane() const { return model.pane.get(); }
    // Null before it is first shown.
    const platform::NSWindow* shownWindow() const { return window.get(); }

private:
    platform::NSApplicationDelegate& delegate() override { return *this; }
    void applicationWillFinishLaunching() override {}
    void applicationDidFinishLaunching() override { show(std::nullopt); }
    platform::NSApplicationTerminateReply applicationShouldTerminate() override {
        return platform::NSApplicationTerminateReply::terminateNow;
    }
    void windowWillClose() override;
    void makeWindow();

    platform::Platform& platform;
    SettingsModel model;
    std::shared_ptr<platform::NSWindow> window;
};

}  // namespace desk
