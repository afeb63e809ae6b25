// What is shown when the mouse rests on a view: help().
// Knows nothing of pointers that rest.
#pragma once

#include <string>
#include <utility>

#include "views/AccessibilityElement.h"
#include "views/View.h"

namespace views {

class HelpNode final : public NodeOf<HelpNode> {
public:
    explicit HelpNode(std::string theText) : text(std::move(theText)) {}

    const char* name() const override { return "help"; }
    bool looksLike(const Node& other) const override { return text == same(other).text; }
    const std::string* help() const override { return &text; }
    void describe(AccessibilityElement& element) const override { element.help = text; }

private:
    std::string text;
};

}  // namespace views
