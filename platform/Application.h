// The application itself towards the platform: launch and termination callbacks, its policy, its event queue. Main thread only.
#pragma once

#include <optional>

#include "platform/Events.h"
#include "platform/Images.h"
#include "platform/Time.h"

namespace platform {

enum class NSApplicationActivationPolicy { regular = 0, accessory = 1, prohibited = 2 };
enum class NSApplicationTerminateReply { terminateCancel = 0, terminateNow = 1 };
enum class NSRunLoopMode { defaultMode, eventTracking, modalPanel };

class NSApplicationDelegate {
public:
    virtual ~NSApplicationDelegate() = default;
    virtual void applicationWillFinishLaunching() = 0;
    virtual void applicationDidFinishLaunching() = 0;
    virtual NSApplicationTerminateReply applicationShouldTerminate() = 0;
};

class NSApplication {
public:
    virtual ~NSApplication() = default;
    virtual void setActivationPolicy(NSApplicationActivationPolicy policy) = 0;
    virtual void activate(bool ignoringOtherApps) = 0;
    // Whatever the bundle holds: there is always one.
    virtual NSImage applicationIconImage() = 0;
    // Asks the delegate; when it agrees, the process ends and nothing more is delivered to it.
    virtual void terminate() = 0;
    // Takes the next event that matches out of the queue, running the loop while there is none; others stay queued. Empty when the date has passed or no more
    // events will come. Timers and the main queue go on meanwhile, local monitors aren't asked.
    virtual std::optional<NSEvent> nextEventMatchingMask(NSEventMask mask, Date untilDate, NSRunLoopMode mode,
                                                         bool dequeue) = 0;
};

}  // namespace platform
