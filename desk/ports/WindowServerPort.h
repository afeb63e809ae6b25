// The window list as an application asks the window server for it: the whole stack in top-left space, with the desktop behind it, and with what Faults spoil.
#pragma once

#include "platform/WindowServer.h"

namespace desk {

class Displays;
class Faults;
class WindowStack;
struct ServerWindow;

class WindowServerPort final : public platform::WindowServer {
public:
    WindowServerPort(WindowStack& theWindows, Displays& theDisplays, Faults& theFaults)
        : windows(theWindows), displays(theDisplays), faults(theFaults) {}
    platform::Value CGWindowListCopyWindowInfo(std::uint32_t option, std::int64_t relativeToWindow) override;

private:
    platform::Dictionary describe(const ServerWindow& window) const;

    WindowStack& windows;
    Displays& displays;
    Faults& faults;
};

}  // namespace desk
