// The base of modifiers that take part in layout: each has one content, proposes it a size and places it inside its own frame. The modifier itself is in the item.
#pragma once

#include "views/LayoutPass.h"

namespace views {

class ContentRule : public LayoutRule {
public:
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override {
        return remembered(pass, index, proposal);
    }
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override {
        const LayoutItem& item = pass[index];
        pass.placeAligned(item.firstChild, contentRect(*item.modifier, frame), alignment(*item.modifier),
                          proposalInside(*item.modifier, item.offered));
    }

protected:
    CGSize measureAnew(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override {
        const Modifier& modifier = *pass[index].modifier;
        const CGSize content = pass.measure(pass[index].firstChild, proposalInside(modifier, proposal));
        return sizeAround(content, modifier, proposal);
    }

    virtual ProposedSize proposalInside(const Modifier& /*modifier*/, const ProposedSize& proposal) const {
        return proposal;
    }
    virtual CGSize sizeAround(CGSize content, const Modifier& /*modifier*/, const ProposedSize& /*proposal*/) const {
        return content;
    }
    virtual CGRect contentRect(const Modifier& /*modifier*/, const CGRect& frame) const { return frame; }
    virtual Alignment alignment(const Modifier& /*modifier*/) const { return Alignment::center; }
};

}  // namespace views
