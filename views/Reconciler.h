// Carries what a tree's places keep (state, subscriptions, tasks) over into the tree that replaces it, evaluates the
// bodies in it on the way, and finds out whether the two look alike. Places match by position and type, among repeated
// siblings by key.
#pragma once

#include <memory>
#include <vector>

#include "views/Context.h"
#include "views/View.h"

namespace views {

class Reconciler {
public:
    // `theTasks` gets the slots of tasks that weren't there before.
    Reconciler(std::shared_ptr<HostLink> theHost, std::vector<std::weak_ptr<TaskSlot>>& theTasks);

    // Answers whether both would be laid out and drawn the same. `previous` is null where there was nothing, and has
    // lost its state afterwards.
    bool update(View& fresh, View* previous);

    // Makes sure that the geometry reader's child is its content for this size.
    void expand(View& reader, CGSize size);

    // For trees that look alike: has `kept` act as `fresh` says, and leaves everything where it is.
    static void takeBehaviour(View& kept, View& fresh);

private:
    bool updateComposite(View& fresh, View* previous);
    bool updateReader(View& fresh, View* previous);
    bool updateRepresentable(View& fresh, View* previous);
    void updateTask(View& fresh, View* previous);
    bool updateChildren(View& fresh, View* previous);

    std::shared_ptr<HostLink> host;
    std::vector<std::weak_ptr<TaskSlot>>& tasks;
};

}  // namespace views
