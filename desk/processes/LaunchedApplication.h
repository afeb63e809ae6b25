// One launched copy of an application: its loop, its side of every platform interface, its shared objects, and the program itself. It dies by terminate: nothing more is
// delivered to it, and Applications destroys it once none of its calls is on the stack.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "desk/processes/ApplicationBackend.h"
#include "desk/processes/Bundle.h"
#include "desk/processes/Ending.h"
#include "desk/time/ApplicationLoop.h"
#include "platform/Application.h"
#include "platform/Platform.h"

namespace desk {

class Scheduler;

// What runs in it; made from the Platform when the process starts.
class Program {
public:
    virtual ~Program() = default;
    virtual platform::NSApplicationDelegate& delegate() = 0;
};
using ProgramFactory = std::function<std::unique_ptr<Program>(platform::Platform&)>;

class LaunchedApplication {
public:
    LaunchedApplication(Scheduler& scheduler, Bundle theBundle, std::int32_t theProcessIdentifier,
                        const BackendFactory& makeBackend);
    ~LaunchedApplication();

    // Makes the program and queues its launch callbacks.
    void start(const ProgramFactory& factory);

    std::int32_t processIdentifier() const { return pid; }
    const Bundle& bundle() const { return launchedBundle; }
    bool isDead() const { return dead; }
    platform::Platform& platform() { return backend->platform(); }
    ApplicationLoop& loop() { return *runLoop; }
    Program* program() const { return runningProgram.get(); }

    // A call of the application that its loop doesn't know of is on the stack while this is above 0.
    int callDepth = 0;
    bool isOnStack() const { return callDepth > 0 || runLoop->isOnStack(); }

    // Asks the delegate, and dies if it agrees.
    void terminate();
    // By somebody else; asked, it answers in a turn of its own.
    void end(Ending how);

    // An event of another process, its location on the screen: its global monitors get a copy in a later turn.
    void offerToGlobalMonitors(const platform::NSEvent& event);
    void postWorkspaceNotification(platform::WorkspaceNotification notification);

    // The application's windows, by number.
    platform::NSWindow* window(std::int64_t number);
    const std::map<std::int64_t, platform::NSWindow*>& windows() const { return ownWindows; }

    Registrations registrations() const { return backend->registrations(); }

    // From queued events, which lie where they were on the screen, to what the application gets: relative to the window as it stands now.
    static platform::NSEvent inItsWindow(platform::NSEvent event);

private:
    friend class PanelHandle;

    void die();
    // Local monitors first, then the keys of the main menu, then the window. Keys may have been waiting: they are for the window that has the keyboard by now.
    void sendEvent(platform::NSEvent event);
    platform::NSWindow* keyWindow() const;

    Bundle launchedBundle;
    std::int32_t pid;
    bool dead = false;
    std::unique_ptr<ApplicationLoop> runLoop;
    std::map<std::int64_t, platform::NSWindow*> ownWindows;
    std::unique_ptr<ApplicationBackend> backend;
    std::unique_ptr<Program> runningProgram;
};

}  // namespace desk
