// Carries what a tree's places keep (state, subscriptions, tasks) over into the tree that replaces it, evaluates the
// bodies in it on the way, and finds out whether the two look alike. Places match by position and type, among repeated
// siblings by key.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "views/Context.h"
#include "views/HostWork.h"
#include "views/View.h"

namespace views {

class Reconciler {
public:
    // `theWork` gets the slots of tasks that weren't there before, and the actions that are due.
    Reconciler(std::shared_ptr<HostLink> theHost, HostWork& theWork);

    // Answers whether both would be laid out and drawn the same. `previous` is null where there was nothing, and has
    // lost its state afterwards.
    bool update(View& fresh, View* previous);

    // The same for the children alone; the views themselves have been compared.
    bool updateChildren(View& fresh, View* previous);

    // Has the view's children declared anew, with the state of those before.
    void redeclare(View& view, const std::function<void(std::vector<View>& children)>& declare);

    // Whatever is read meanwhile is read for the view that is being declared.
    template <typename Declare>
    void evaluate(Declare declare) {
        host->isEvaluating = true;
        declare();
        host->isEvaluating = false;
    }

    // For trees that look alike: has `kept` act as `fresh` says, and leaves everything where it is.
    static void takeBehaviour(View& kept, View& fresh);

    const std::shared_ptr<HostLink> host;
    HostWork& work;
};

}  // namespace views
