// The windows of processes of which the desk shows nothing but windows: they have all three buttons and can be moved and resized; their menus and keys close, minimise and quit.
// Their content takes presses and does nothing.
#pragma once

#include "desk/windows/WindowKeeper.h"

namespace desk {

class Activation;
class Displays;
class Processes;
class WindowStack;

class SketchedWindows final : public WindowKeeper {
public:
    SketchedWindows(WindowStack& theWindows, Displays& theDisplays, Processes& theProcesses, Activation& theActivation)
        : windows(theWindows), displays(theDisplays), processes(theProcesses), activation(theActivation) {}

    WindowTraits traits(std::int64_t window) const override;
    void bringForward(std::int64_t window) override;
    void close(std::int64_t window) override;
    void minimize(std::int64_t window) override;
    void restore(std::int64_t window) override;
    void zoom(std::int64_t window) override;
    void setFrame(std::int64_t window, const platform::CGRect& frame) override;
    std::vector<std::string> menus() const override;
    std::vector<platform::MenuItem> menuItems(std::int32_t process, const std::string& menu) override;
    void handle(std::int64_t window, const platform::NSEvent& event) override;

private:
    WindowStack& windows;
    Displays& displays;
    Processes& processes;
    Activation& activation;
};

}  // namespace desk
