// A desk on which the system itself runs, for tests of whole behaviours: the user has been through the guide. It measures text with the system font, as the display does.
#pragma once

#include <string>

#include "app/BrindleApp.h"
#include "tests/kit/Desk.h"

namespace kit {

class OrvaneDesk : public Desk {
public:
    OrvaneDesk();

    // Starts a copy and lets its launch callbacks run.
    desk::LaunchedApplication& launch(const std::string& bundlePath = "/Applications/Orvane.app");
    // What runs in the copy that was launched last, as long as it lives.
    brindle::OrvaneApp& orvane();
    desk::LaunchedApplication& application();
};

}  // namespace kit
