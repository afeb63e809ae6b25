// One stand-in Mac with what is launched on it: the place where the machine and the system meet. The script player, the state and the tour look at both through it.
#pragma once

#include <memory>
#include <string>

#include "app/BrindleApp.h"
#include "desk/Machine.h"
#include "desk/desktop/DesktopLayers.h"
#include "desk/display/Compositor.h"
#include "desk/display/QtTextSystem.h"

namespace play {

inline constexpr const char* applicationIdentifier = "com.velmora.Brindle";
inline constexpr const char* installedCopy = "/Applications/Orvane.app";

class Session {
public:
    Session();
    ~Session();

    // Declared in the order in which they lean on each other.
    desk::QtTextSystem text;
    desk::Machine machine{text};
    desk::DesktopLayers desktop{machine};
    desk::Compositor compositor;

    // What scripts say in the Info dictionary of each copy that is launched, over what its own says; null takes a key away.
    platform::Dictionary info;

    // The application's stored user defaults: of its living copy, or else of what a launch would start.
    const platform::Dictionary& defaults();
    // A stored default, or its removal. It holds for an installed copy without an identifier too.
    void setDefault(const std::string& key, const std::optional<platform::Value>& value);

    // A copy of the application is a folder with its executable in it.
    bool isCopy(const std::string& path) const;
    void launch(const std::string& bundlePath);
    // Before a launch: a Mac on which the application has never run. It has no permission, and the user hasn't been through the guide.
    void beFirstLaunch();
    bool hasLaunched() const { return launched; }

    // The living copy that was launched last, and what runs in it; null without one.
    desk::LaunchedApplication* application() const;
    const brindle::OrvaneApp* orvane() const;
    // The application's item in the menu bar; null without one.
    const desk::BarItem* statusItem() const;
    // What runs in some copy; null in one that has ended, and where it is another program.
    static const brindle::OrvaneApp* orvane(const desk::LaunchedApplication& copy);

private:
    bool launched = false;
};

}  // namespace play
