#include "views/nodes/TaskNode.h"

#include "views/Reconciler.h"

namespace views {

bool TaskNode::update(Reconciler& reconciler, View& fresh, View* previous) {
    if (previous != nullptr) {
        slot = std::move(previous->as<TaskNode>().slot);
    } else {
        slot = std::make_shared<TaskSlot>();
        reconciler.work.tasks.push_back(slot);
    }
    slot->start = std::move(start);
    return Node::update(reconciler, fresh, previous);
}

}  // namespace views
