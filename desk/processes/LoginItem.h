// The login item of the application, as the system keeps it: its status, and what becomes of the application's requests. It opens nothing.
#pragma once

#include <optional>
#include <string>

#include "platform/LoginItems.h"
#include "platform/Signal.h"

namespace desk {

class LoginItem {
public:
    using Status = platform::SMAppServiceStatus;
    enum class Outcome { works, keeps, fails };
    struct Request {
        Outcome outcome = Outcome::works;
        std::string message;  // of one that fails
    };

    Status status = Status::notRegistered;
    Request registering;
    Request unregistering;
    platform::Signal<> changed;
    // The application wants the user to see where login items are allowed.
    platform::Signal<> settingsWanted;

    // Registered, it is listed in System Settings, where the user allows it or not.
    bool isRegistered() const { return status == Status::enabled || status == Status::requiresApproval; }
    void setStatus(Status now) {
        status = now;
        changed();
    }

    // The message of a request that fails.
    std::optional<std::string> registerIt() { return answer(registering, Status::enabled); }
    std::optional<std::string> unregisterIt() { return answer(unregistering, Status::notRegistered); }

private:
    std::optional<std::string> answer(const Request& request, Status wanted) {
        if (request.outcome == Outcome::fails) return request.message;
        if (request.outcome == Outcome::works) setStatus(wanted);
        return std::nullopt;
    }
};

}  // namespace desk
