#include "desk/ports/AppleEventsPort.h"

#include "desk/Machine.h"

namespace desk {

std::unique_ptr<platform::NSAppleScript> AppleEventsPort::makeAppleScript(const std::string& source) {
    return machine.scripting.makeScript(application, source);
}

}  // namespace desk
