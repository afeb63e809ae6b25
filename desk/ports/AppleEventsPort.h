// AppleScript as one application sends it; the scripts of one that has ended answer an error and reach nobody.
#pragma once

#include "platform/AppleEvents.h"

namespace desk {

class FinderScripting;
class LaunchedApplication;

class AppleEventsPort final : public platform::AppleEvents {
public:
    AppleEventsPort(FinderScripting& theScripting, LaunchedApplication& theApplication)
        : scripting(theScripting), application(theApplication) {}
    std::unique_ptr<platform::NSAppleScript> makeAppleScript(const std::string& source) override;

private:
    FinderScripting& scripting;
    LaunchedApplication& application;
};

}  // namespace desk
