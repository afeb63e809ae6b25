// What a tree asks of its host beside being shown: tasks to run while it is on screen, and actions for values that have become others. The host does both once the tree is in its place.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "views/TaskSlot.h"

namespace views {

struct HostWork {
    std::vector<std::weak_ptr<TaskSlot>> tasks;
    std::vector<std::function<void()>> changes;  // in paint order
};

}  // namespace views
