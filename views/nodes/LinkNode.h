// A text that opens an address with whatever the user has for it.
// It looks the same whether the address was visited or not.
#pragma once

#include <string>
#include <utility>

#include "views/nodes/TextNode.h"

namespace views {

class LinkNode final : public NodeOf<LinkNode> {
public:
    explicit LinkNode(std::string theUrl) : url(std::move(theUrl)) {}

    const char* name() const override { return "link"; }
    void takeBehaviour(Node& fresh) override { url = std::move(same(fresh).url); }
    bool reacts() const override { return true; }
    void clicked(HostingView& host) const override;
    std::optional<AccessibilityRole> role() const override { return AccessibilityRole::link; }

private:
    std::string url;
};

inline View Link(std::string title, std::string url) {
    return View(LinkNode(std::move(url)), Text(std::move(title)).foregroundStyle(ColorRole::accent));
}

}  // namespace views
