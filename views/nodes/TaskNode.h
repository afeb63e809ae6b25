// Work that is started when a view's window is ordered in, and cancelled when that is ordered out or the view's place goes: task().
// The host starts and cancels it; the node keeps it in its place.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "views/TaskSlot.h"
#include "views/View.h"

namespace views {

class TaskNode final : public NodeOf<TaskNode> {
public:
    explicit TaskNode(std::function<Task()> theStart) : start(std::move(theStart)) {}

    const char* name() const override { return "task"; }
    bool update(Reconciler& reconciler, View& fresh, View* previous) override;
    void takeBehaviour(Node& fresh) override { slot = std::move(same(fresh).slot); }

private:
    std::function<Task()> start;
    std::shared_ptr<TaskSlot> slot;
};

}  // namespace views
