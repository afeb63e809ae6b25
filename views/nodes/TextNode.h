// A text: on as many lines as its width asks for, or as lineLimit() allows. It never gives up lines to height.
#pragma once

#include <string>
#include <utility>

#include "views/View.h"

namespace views {

class TextNode final : public LeafOf<TextNode> {
public:
    explicit TextNode(std::string theText) : text(std::move(theText)) {}

    const char* name() const override { return "text"; }
    bool looksLike(const Node& other) const override { return text == same(other).text; }
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void draw(Canvas& canvas, const LayoutItem& item) const override;

    std::optional<AccessibilityRole> role() const override { return AccessibilityRole::staticText; }
    const std::string* shownText() const override { return &text; }
    void addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const override;

private:
    CGSize sizeOfLines(LayoutPass& pass, const LayoutItem& item, double width) const;
    std::string shortened(Canvas& canvas, const LayoutItem& item) const;
    void drawLines(Canvas& canvas, const LayoutItem& item, double lineHeight) const;

    std::string text;
};

inline View Text(std::string text) {
    return View(TextNode(std::move(text)));
}

}  // namespace views
