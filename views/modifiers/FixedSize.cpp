// The ideal length on one axis or both, whatever is offered.
#include "views/modifiers/ContentRule.h"

namespace views {

namespace {

class FixedSizeRule final : public ContentRule {
public:
    const char* name() const override { return "fixedSize"; }

protected:
    ProposedSize proposalInside(const Modifier& modifier, const ProposedSize& proposal) const override {
        const auto& fixed = std::get<FixedSize>(modifier);
        return {fixed.horizontal ? unspecified : proposal.width, fixed.vertical ? unspecified : proposal.height};
    }
};

}  // namespace

const LayoutRule& ruleOf(const FixedSize& /*fixed*/) {
    static const FixedSizeRule rule;
    return rule;
}

}  // namespace views
