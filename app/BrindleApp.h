// The application value and its entry. A backend makes it from a Platform when the process starts, keeps it for the
// life of the process, and tells its delegate of the launch. It shows nothing itself: there is no window scene, every
// window is built by a controller.
#pragma once

#include <memory>

#include "app/AppDelegate.h"
#include "platform/Platform.h"

namespace brindle {

class OrvaneApp {
public:
    explicit OrvaneApp(platform::Platform& platform) : appDelegate(platform) {}

    static std::unique_ptr<OrvaneApp> main(platform::Platform& platform);

    // The menu-bar extra, the one scene of this application, belongs beside it.
    AppDelegate appDelegate;
};

}  // namespace brindle
