// The login item of the application, as the system keeps it: its status, and what becomes of the application's requests. It opens nothing.
#pragma once

#include <optional>
#include <string>

#include "platform/LoginItems.h"

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

    // The message of a request that fails.
    std::optional<std::string> registerIt() { return answer(registering, Status::enabled); }
    std::optional<std::string> unregisterIt() { return answer(unregistering, Status::notRegistered); }

private:
    std::optional<std::string> answer(const Request& request, Status wanted) {
        if (request.outcome == Outcome::fails) return request.message;
        if (request.outcome == Outcome::works) status = wanted;
        return std::nullopt;
    }
};

}  // namespace desk
