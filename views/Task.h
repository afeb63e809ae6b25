// A handle of work on the main thread that waits before it acts and can be cancelled until then. Copies share the task;
// letting go of the handle doesn't cancel it.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "platform/Dispatch.h"

namespace views {

class Task {
public:
    Task() = default;
    // The work runs unless the task was cancelled while it slept.
    static Task sleeping(platform::Dispatch& dispatch, platform::Duration duration, std::function<void()> work) {
        Task task;
        task.item = std::make_shared<platform::DispatchWorkItem>(std::move(work));
        dispatch.mainAfter(duration, task.item);
        return task;
    }

    void cancel() const {
        if (item) item->cancel();
    }
    bool isCancelled() const { return item && item->isCancelled(); }

private:
    std::shared_ptr<platform::DispatchWorkItem> item;
};

}  // namespace views
