// Limits within which a view follows what is offered.
#include <algorithm>

#include "views/modifiers/ContentRule.h"

namespace views {

namespace {

double clamped(double value, double minimum, double maximum) {
    if (value == unspecified) return unspecified;
    if (maximum != unspecified) value = std::min(value, maximum);
    return std::max(value, minimum);
}

// A limit that isn't given is the content's own length.
double flexibleLength(double offered, double minimum, double maximum, double content) {
    if (minimum == unspecified && maximum == unspecified) return content;
    const double wanted = orElse(offered, content);
    const double low = minimum == unspecified ? std::min(content, orElse(maximum, content)) : minimum;
    const double high = maximum == unspecified ? std::max(content, low) : maximum;
    return std::max(low, std::min(wanted, high));
}

class FlexibleFrameRule final : public ContentRule {
public:
    const char* name() const override { return "flexibleFrame"; }

protected:
    ProposedSize proposalInside(const Modifier& modifier, const ProposedSize& proposal) const override {
        const auto& limits = std::get<FlexibleFrame>(modifier);
        return {clamped(proposal.width, limits.minWidth, limits.maxWidth),
                clamped(proposal.height, limits.minHeight, limits.maxHeight)};
    }
    CGSize sizeAround(CGSize content, const Modifier& modifier, const ProposedSize& proposal) const override {
        const auto& limits = std::get<FlexibleFrame>(modifier);
        return {flexibleLength(proposal.width, limits.minWidth, limits.maxWidth, content.width),
                flexibleLength(proposal.height, limits.minHeight, limits.maxHeight, content.height)};
    }
    Alignment alignment(const Modifier& modifier) const override { return std::get<FlexibleFrame>(modifier).alignment; }
};

}  // namespace

const LayoutRule& ruleOf(const FlexibleFrame& /*frame*/) {
    static const FlexibleFrameRule rule;
    return rule;
}

}  // namespace views
