// What scripts see of Finder and do to it: the interpreter's host, over Finder and the disk. Makes the operations of one script run; knows no syntax.
#pragma once

#include <memory>
#include <string>

#include "platform/AppleEvents.h"

namespace desk {

class Application;
class Machine;

// One script sent, for whoever looks at the machine.
struct SentScript {
    std::string source;
    std::string error;  // empty on success
};

// Compiles and runs a script sent by an application, on the calling thread (its main thread or one of its queues): permission, prompt, faults, evaluation at once,
// then the latency, during which the caller waits and the machine goes on.
class FinderScripting {
public:
    explicit FinderScripting(Machine& theMachine) : machine(theMachine) {}
    std::unique_ptr<platform::NSAppleScript> makeScript(Application& sender, const std::string& source);

private:
    Machine& machine;
};

}  // namespace desk
