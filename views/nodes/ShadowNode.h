// A view whose filled shapes cast a shadow: shadow(). Texts and pictures inside cast none.
#pragma once

#include "views/Canvas.h"
#include "views/View.h"

namespace views {

class ShadowNode final : public NodeOf<ShadowNode> {
public:
    explicit ShadowNode(const platform::Shadow& theShadow) : shadow(theShadow) {}

    const char* name() const override { return "shadow"; }
    bool looksLike(const Node& other) const override { return shadow == same(other).shadow; }
    void draw(Canvas& canvas, const LayoutItem& item) const override { canvas.drawChildrenShadowed(item, shadow); }

private:
    platform::Shadow shadow;
};

}  // namespace views
