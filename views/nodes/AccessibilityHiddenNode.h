// A view that assistive tools, scripts and tests pass over, with all that is inside: accessibilityHidden().
// It changes nothing that is seen or pressed.
#pragma once

#include "views/AccessibilityElement.h"
#include "views/View.h"

namespace views {

class AccessibilityHiddenNode final : public NodeOf<AccessibilityHiddenNode> {
public:
    const char* name() const override { return "accessibilityHidden"; }
    void describe(AccessibilityElement& element) const override { element.isHidden = true; }
};

}  // namespace views
