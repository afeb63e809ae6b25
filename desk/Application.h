// One launched copy of an application: its loop, its side of every platform interface, its user defaults and shared objects, and the program itself. It dies by terminate: nothing more is
// delivered to it, and the Machine destroys it once none of its calls is on the stack.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "desk/time/ApplicationLoop.h"
#include "platform/Application.h"
#include "platform/Platform.h"

namespace desk {

class Machine;

// What runs in it; made from the Platform when the process starts.
class Program {
public:
    virtual ~Program() = default;
    virtual platform::NSApplicationDelegate& delegate() = 0;
};
using ProgramFactory = std::function<std::unique_ptr<Program>(platform::Platform&)>;

// What `launch` starts: identity, stored defaults and Info dictionary.
struct ApplicationImage {
    std::string bundleIdentifier = "com.velmora.Brindle";
    std::string name = "Orvane";
    platform::Dictionary info;
    platform::Dictionary storedDefaults;
};

class Application {
public:
    Application(Machine& theMachine, std::string theBundlePath, const ApplicationImage& image, std::int32_t theProcessIdentifier);
    ~Application();

    // Makes the program and queues its launch callbacks.
    void start(const ProgramFactory& factory);

    std::int32_t processIdentifier() const { return pid; }
    const std::string& bundlePath() const { return path; }
    bool isDead() const { return dead; }
    platform::Platform& platform() { return *platformOfIt; }
    ApplicationLoop& loop() { return *runLoop; }
    Program* program() { return runningProgram.get(); }
    const platform::Dictionary& storedDefaults() const;

    // A call of the application is on the stack while this is above 0.
    int callDepth = 0;

    // Events for its windows; monitors see them here. Global monitors get copies of events of other processes.
    void sendEvent(const platform::NSEvent& event);
    void offerToGlobalMonitors(const platform::NSEvent& event);
    void postWorkspaceNotification(platform::WorkspaceNotification notification);

    // The application's windows, by number.
    platform::NSWindow* window(std::int64_t number);
    const std::map<std::int64_t, platform::NSWindow*>& windows() const { return ownWindows; }

    // What is registered now, for tests of leaks.
    struct Registrations {
        std::size_t globalMonitors, localMonitors, workspaceObservers, accessibilitySubscriptions, timers, windows;
    };
    Registrations registrations() const;

private:
    friend class WindowPort;
    struct Ports;  // the adapters behind Platform's references

    void terminate();

    Machine& machine;
    std::string path;
    std::int32_t pid;
    bool dead = false;
    std::unique_ptr<ApplicationLoop> runLoop;
    std::unique_ptr<Ports> ports;
    std::unique_ptr<platform::SharedSlots> slots;
    std::unique_ptr<platform::Platform> platformOfIt;
    std::map<std::int64_t, platform::NSWindow*> ownWindows;
    std::unique_ptr<Program> runningProgram;
};

}  // namespace desk
