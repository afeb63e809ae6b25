// What the application's ordinary windows have in common: each is built when it is first shown, kept when it is closed, and gives the focus back to the application that was in
// front before it. What a window shows, and what else its closing means, is its own controller's affair. Main thread only.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/Platform.h"

namespace brindle {

class OrdinaryWindowController : public platform::NSWindowDelegate {
public:
    explicit OrdinaryWindowController(platform::Platform& thePlatform) : platform(thePlatform) {}
    OrdinaryWindowController(const OrdinaryWindowController&) = delete;
    OrdinaryWindowController& operator=(const OrdinaryWindowController&) = delete;
    ~OrdinaryWindowController() override;

    // Centred, in front and with the keyboard, wherever it was before.
    void show();
    void windowWillClose() override;

protected:
    // Called each time, before anything else.
    virtual void willShow() {}
    // Called once, before the window is first shown.
    virtual std::unique_ptr<platform::ContentView> makeContentView() = 0;
    // The content's size, and what the frame is kept within, in points.
    struct Description {
        std::string title;
        platform::CGSize contentSize;
        unsigned styleMask = 0;
        std::optional<platform::CGSize> minSize{};
        std::optional<platform::CGSize> maxSize{};
    };
    virtual Description description() const = 0;

    platform::Platform& platform;
    std::shared_ptr<platform::NSWindow> window;

private:
    void makeWindow();
    // Showing the window while the application itself is in front changes nothing.
    void rememberFrontmostApplication();

    std::optional<platform::NSRunningApplication> previouslyFrontmostApplication;
};

}  // namespace brindle
