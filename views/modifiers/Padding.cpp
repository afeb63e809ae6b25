// Room around a view.
#include "views/modifiers/ContentRule.h"

namespace views {

namespace {

class PaddingRule final : public ContentRule {
public:
    const char* name() const override { return "padding"; }

protected:
    ProposedSize proposalInside(const Modifier& modifier, const ProposedSize& proposal) const override {
        const auto& insets = std::get<EdgeInsets>(modifier);
        return {reduced(proposal.width, insets.leading + insets.trailing),
                reduced(proposal.height, insets.top + insets.bottom)};
    }
    CGSize sizeAround(CGSize content, const Modifier& modifier, const ProposedSize& /*proposal*/) const override {
        const auto& insets = std::get<EdgeInsets>(modifier);
        return {content.width + insets.leading + insets.trailing, content.height + insets.top + insets.bottom};
    }
    CGRect contentRect(const Modifier& modifier, const CGRect& frame) const override {
        const auto& insets = std::get<EdgeInsets>(modifier);
        return CGRectMake(frame.minX() + insets.leading, frame.minY() + insets.top,
                          frame.width() - insets.leading - insets.trailing,
                          frame.height() - insets.top - insets.bottom);
    }
};

}  // namespace

const LayoutRule& ruleOf(const EdgeInsets& /*padding*/) {
    static const PaddingRule rule;
    return rule;
}

}  // namespace views
