// How one kind of item in a layout is measured, placed and drawn: the base of all nodes, and of the modifiers that take part in layout. It holds nothing of one layout: that is in
// LayoutItem.
#pragma once

#include <cstdint>

#include "platform/Geometry.h"
#include "views/ProposedSize.h"

namespace views {

using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
using platform::CGSize;

class Canvas;
class LayoutPass;
struct LayoutItem;

class LayoutRule {
public:
    LayoutRule() = default;
    virtual ~LayoutRule() = default;

    // In Layout::description().
    virtual const char* name() const = 0;
    // The size it takes when it is offered that one. Asked several times in a pass.
    virtual CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const = 0;
    // Its frame is set already. Called once; whatever is inside has to be placed in turn.
    virtual void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const = 0;
    // What is behind before what is in front. The default draws what is inside.
    virtual void draw(Canvas& canvas, const LayoutItem& item) const;

protected:
    LayoutRule(const LayoutRule&) = default;
    LayoutRule& operator=(const LayoutRule&) = default;
    LayoutRule(LayoutRule&&) = default;
    LayoutRule& operator=(LayoutRule&&) = default;

    // For measure() where that is more work than looking an answer up: measureAnew() for what wasn't asked before.
    CGSize remembered(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const;
    virtual CGSize measureAnew(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const;
};

}  // namespace views
