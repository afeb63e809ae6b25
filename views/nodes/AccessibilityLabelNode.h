// What a view is called by assistive tools, in place of the texts inside: accessibilityLabel().
// It changes nothing that is seen.
#pragma once

#include <string>
#include <utility>

#include "views/AccessibilityElement.h"
#include "views/View.h"

namespace views {

class AccessibilityLabelNode final : public NodeOf<AccessibilityLabelNode> {
public:
    explicit AccessibilityLabelNode(std::string theLabel) : label(std::move(theLabel)) {}

    const char* name() const override { return "accessibilityLabel"; }
    bool looksLike(const Node& other) const override { return label == same(other).label; }
    void describe(AccessibilityElement& element) const override { element.label = label; }

private:
    std::string label;
};

}  // namespace views
