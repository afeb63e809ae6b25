// Draws what is inside larger or smaller.
#include "views/Canvas.h"
#include "views/modifiers/ContentRule.h"

namespace views {

namespace {

class ScaleRule final : public ContentRule {
public:
    const char* name() const override { return "scale"; }
    void draw(Canvas& canvas, const LayoutItem& item) const override {
        canvas.drawChildrenScaled(item, std::get<ScaleEffect>(*item.modifier).factor);
    }
};

}  // namespace

const LayoutRule& ruleOf(const ScaleEffect& /*effect*/) {
    static const ScaleRule rule;
    return rule;
}

}  // namespace views
