// The application value and its entry. A backend makes it from a Platform when the process starts, keeps it for the
// life of the process, and tells its delegate of the launch. Its one scene is the item in the menu bar: there is no
// window scene, every window is built by a controller.
#pragma once

#include <memory>

#include "app/AppDelegate.h"
#include "platform/Platform.h"
#include "views/MenuBarExtraHost.h"

namespace brindle {

class OrvaneApp {
public:
    explicit OrvaneApp(platform::Platform& platform) : appDelegate(platform), scene(platform, body()) {}

    static std::unique_ptr<OrvaneApp> main(platform::Platform& platform);

    views::MenuBarExtra body();

    AppDelegate appDelegate;

private:
    views::MenuBarExtraHost scene;
};

}  // namespace brindle
