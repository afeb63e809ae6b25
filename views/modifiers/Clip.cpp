// Cuts what is inside to the frame.
#include "views/Canvas.h"
#include "views/modifiers/ContentRule.h"

namespace views {

namespace {

class ClipRule final : public ContentRule {
public:
    const char* name() const override { return "clip"; }
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override {
        pass[index].clips = true;
        ContentRule::place(pass, index, frame);
    }
    void draw(Canvas& canvas, const LayoutItem& item) const override {
        const auto& clip = std::get<Clip>(*item.modifier);
        canvas.drawChildrenClipped(item, clip.radius, clip.corners);
    }
};

}  // namespace

const LayoutRule& ruleOf(const Clip& /*clip*/) {
    static const ClipRule rule;
    return rule;
}

}  // namespace views
