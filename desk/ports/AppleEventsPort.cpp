#include "desk/ports/AppleEventsPort.h"

#include "desk/Machine.h"

namespace desk {

namespace {

class ScriptWithoutSender final : public platform::NSAppleScript {
public:
    platform::NSAppleScriptResult executeAndReturnError() override {
        constexpr int connectionInvalid = -609;
        return {std::nullopt, platform::Dictionary{{platform::NSAppleScriptErrorNumber, connectionInvalid},
                                                   {platform::NSAppleScriptErrorMessage, "Connection is invalid."}}};
    }
};

}  // namespace

std::unique_ptr<platform::NSAppleScript> AppleEventsPort::makeAppleScript(const std::string& source) {
    if (application.isDead()) return std::make_unique<ScriptWithoutSender>();
    return machine.scripting.makeScript(application, source);
}

}  // namespace desk
