#include "views/LayoutRule.h"

#include <algorithm>

#include "views/Canvas.h"
#include "views/LayoutPass.h"

namespace views {

void LayoutRule::draw(Canvas& canvas, const LayoutItem& item) const {
    canvas.drawChildren(item);
}

CGSize LayoutRule::remembered(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    LayoutItem& item = pass[index];
    for (std::size_t known = 0; known < item.answerCount; ++known) {
        const LayoutItem::Answer& answer = item.answers[known];
        if (answer.proposedWidth == proposal.width && answer.proposedHeight == proposal.height)
            return {answer.width, answer.height};
    }
    const CGSize size = measureAnew(pass, index, proposal);
    item.answers[item.nextAnswer] = {proposal.width, proposal.height, size.width, size.height};
    item.answerCount = std::max<std::uint8_t>(item.answerCount, static_cast<std::uint8_t>(item.nextAnswer + 1));
    item.nextAnswer = static_cast<std::uint8_t>((item.nextAnswer + 1U) % item.answers.size());
    return size;
}

CGSize LayoutRule::measureAnew(LayoutPass& /*pass*/, std::int32_t /*index*/, const ProposedSize& /*proposal*/) const {
    return {};
}

}  // namespace views
