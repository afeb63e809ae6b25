// A label that opens a menu below itself when it is pressed. The entries (buttons, dividers, plain texts) are evaluated
// each time the menu opens.
#pragma once

#include <functional>
#include <utility>

#include "views/View.h"

namespace views {

class MenuNode final : public NodeOf<MenuNode> {
public:
    explicit MenuNode(std::function<View()> theEntries) : entries(std::move(theEntries)) {}

    const char* name() const override { return "menu"; }
    void takeBehaviour(Node& fresh) override { entries = std::move(same(fresh).entries); }
    bool reacts() const override { return true; }
    void mouseDown(HostingView& host, const LayoutItem& item, const platform::NSEvent& event) const override;
    std::optional<AccessibilityRole> role() const override { return AccessibilityRole::menuButton; }

private:
    std::function<View()> entries;
};

inline View Menu(std::function<View()> entries, View label) {
    return View(MenuNode(std::move(entries)), std::move(label));
}

}  // namespace views
