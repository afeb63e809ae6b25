// A view with a menu for right clicks and Control clicks: contextMenu().
// The content is evaluated when the menu opens.
#pragma once

#include <functional>
#include <utility>

#include "views/View.h"

namespace views {

class ContextMenuNode final : public NodeOf<ContextMenuNode> {
public:
    explicit ContextMenuNode(std::function<View()> theEntries) : entries(std::move(theEntries)) {}

    const char* name() const override { return "contextMenu"; }
    void takeBehaviour(Node& fresh) override { entries = std::move(same(fresh).entries); }
    const std::function<View()>* contextMenu() const override { return &entries; }

private:
    std::function<View()> entries;
};

}  // namespace views
