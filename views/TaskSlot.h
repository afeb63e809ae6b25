// A task in its place in the tree: running while the window around it is ordered in.
// Whoever drops the last reference cancels it.
#pragma once

#include <functional>

#include "views/Task.h"

namespace views {

struct TaskSlot {
    std::function<Task()> start;
    Task running;
    bool isRunning = false;

    TaskSlot() = default;
    TaskSlot(const TaskSlot&) = delete;
    TaskSlot& operator=(const TaskSlot&) = delete;
    ~TaskSlot() { running.cancel(); }
};

}  // namespace views
