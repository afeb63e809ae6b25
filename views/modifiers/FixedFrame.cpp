// A length of one's own on one axis or both, whatever is offered.
#include "views/modifiers/ContentRule.h"

namespace views {

namespace {

class FixedFrameRule final : public ContentRule {
public:
    const char* name() const override { return "frame"; }

    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override {
        const auto& frame = std::get<FixedFrame>(*pass[index].modifier);
        if (frame.width != unspecified && frame.height != unspecified) return {frame.width, frame.height};
        return remembered(pass, index, proposal);
    }

protected:
    ProposedSize proposalInside(const Modifier& modifier, const ProposedSize& proposal) const override {
        const auto& frame = std::get<FixedFrame>(modifier);
        return {orElse(frame.width, proposal.width), orElse(frame.height, proposal.height)};
    }
    CGSize sizeAround(CGSize content, const Modifier& modifier, const ProposedSize& /*proposal*/) const override {
        const auto& frame = std::get<FixedFrame>(modifier);
        return {orElse(frame.width, content.width), orElse(frame.height, content.height)};
    }
    Alignment alignment(const Modifier& modifier) const override { return std::get<FixedFrame>(modifier).alignment; }
};

}  // namespace

const LayoutRule& ruleOf(const FixedFrame& /*frame*/) {
    static const FixedFrameRule rule;
    return rule;
}

}  // namespace views
