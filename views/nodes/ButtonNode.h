// Acts when a press that began on it ends on it. A plain button looks like its label alone; a bordered one has a shape of its own, and shows that it is pressed, disabled or the
// default.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "views/nodes/TextNode.h"

namespace views {

class ButtonNode final : public NodeOf<ButtonNode> {
public:
    explicit ButtonNode(std::function<void()> theAction) : action(std::move(theAction)) {}

    const char* name() const override { return "button"; }
    void takeBehaviour(Node& fresh) override { action = std::move(same(fresh).action); }

    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override;
    void draw(Canvas& canvas, const LayoutItem& item) const override;

    bool reacts() const override { return true; }
    void clicked(HostingView& host) const override;

    std::optional<AccessibilityRole> role() const override { return AccessibilityRole::button; }
    void addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const override;

private:
    std::function<void()> action;
};

inline View Button(std::function<void()> action, View label) {
    return View(ButtonNode(std::move(action)), std::move(label));
}
inline View Button(std::string title, std::function<void()> action) {
    return Button(std::move(action), Text(std::move(title)));
}

}  // namespace views
