// What a tree asks of its host beside being shown: tasks to run while it is on screen, and actions for values that have become others. The host has both done once the tree is in its place.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "views/TaskSlot.h"

namespace views {

struct HostWork {
    std::vector<std::weak_ptr<TaskSlot>> tasks;
    std::vector<std::function<void()>> changes;  // in paint order

    // Starts those that don't run yet, or cancels those that do.
    void runTasks(bool shouldRun) {
        std::erase_if(tasks, [](const auto& task) { return task.expired(); });
        for (const auto& weak : tasks) {
            const auto task = weak.lock();
            if (std::exchange(task->isRunning, shouldRun) == shouldRun) continue;
            if (shouldRun)
                task->running = task->start();
            else
                task->running.cancel();
        }
    }
    // They may change what is shown, and even end the host: whoever calls keeps what they belong to.
    void runChanges() {
        for (const auto& action : std::exchange(changes, {})) action();
    }
};

}  // namespace views
