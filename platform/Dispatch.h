// Getting work to the main thread and off it. Everything posted to the main queue runs on the application's main thread, in a later turn
// of its run loop, in order of due time and then of posting; a main-thread task is always posted, never run inline.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/Time.h"

namespace platform {

using Block = std::function<void()>;

// A block that can be taken back until it has begun.
class DispatchWorkItem {
public:
    explicit DispatchWorkItem(Block work) : block(std::move(work)) {}
    void cancel() { cancelled = true; }
    bool isCancelled() const { return cancelled; }
    // The queue calls it when the item comes due.
    void perform() {
        if (!cancelled) block();
    }

private:
    Block block;
    bool cancelled = false;
};

enum class QualityOfService { userInteractive, userInitiated, standard, utility, background };

// While one lives on a thread, what calls of the platform leave behind there is kept; it is released when the innermost one goes.
class AutoreleasePool {
public:
    virtual ~AutoreleasePool() = default;
};

class SerialQueue {
public:
    // Waits for nothing: blocks not yet begun are dropped.
    virtual ~SerialQueue() = default;
    // Any thread. Blocks run one at a time, in order, off the main thread.
    virtual void async(Block block) = 0;
};

class Dispatch {
public:
    virtual ~Dispatch() = default;

    // Any thread.
    virtual void mainAsync(Block block) = 0;
    virtual void mainAfter(Duration delay, std::shared_ptr<DispatchWorkItem> item) = 0;
    // A task bound to the main thread, at default priority. Any thread.
    virtual void mainTask(Block block) = 0;

    virtual std::unique_ptr<SerialQueue> makeSerialQueue(std::string label, QualityOfService qualityOfService) = 0;
    // Runs the block once, off the main thread, on a thread that goes when it has ended. Called on the main thread; a block that hasn't begun when the application
    // ends is dropped.
    virtual void detachedTask(QualityOfService qualityOfService, Block block) = 0;
    virtual bool isMainThread() const = 0;

    // For the calling thread, any. Null where calls leave nothing behind.
    virtual std::unique_ptr<AutoreleasePool> makeAutoreleasePool() { return nullptr; }
};

}  // namespace platform
