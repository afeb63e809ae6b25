// A symbol of the system's set, as large as the font in force.
// It has no size of its own choosing: resizing is for pictures.
#pragma once

#include <string>
#include <utility>

#include "views/nodes/StackNode.h"
#include "views/nodes/TextNode.h"

namespace views {

class SymbolNode final : public LeafOf<SymbolNode> {
public:
    explicit SymbolNode(std::string theName) : symbol(std::move(theName)) {}

    const char* name() const override { return "symbol"; }
    bool looksLike(const Node& other) const override { return symbol == same(other).symbol; }
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void draw(Canvas& canvas, const LayoutItem& item) const override;

    std::optional<AccessibilityRole> role() const override { return AccessibilityRole::image; }
    const std::string* shownSymbol() const override { return &symbol; }
    void addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const override;

private:
    std::string symbol;
};

inline View Image(std::string systemName) {
    return View(SymbolNode(std::move(systemName)));
}

inline View Label(std::string title, std::string systemImage) {
    return HStack({.spacing = 6}, Image(std::move(systemImage)), Text(std::move(title)));
}

}  // namespace views
