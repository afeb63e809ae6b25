#include "desk/ports/AppleEventsPort.h"

#include "desk/finder/FinderScripting.h"

namespace desk {

std::unique_ptr<platform::NSAppleScript> AppleEventsPort::makeAppleScript(const std::string& source) {
    return scripting.makeScript(application, source);
}

}  // namespace desk
