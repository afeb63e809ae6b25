#include "views/Canvas.h"

#include <algorithm>

#include "views/PixelGrid.h"

namespace views {

void Canvas::draw() {
    into.operations.clear();
    if (layout.isEmpty()) return;
    for (const Stratum stratum : {Stratum::shapes, Stratum::texts}) {
        now = stratum;
        const LayoutItem& root = layout[layout.root()];
        root.rule->draw(*this, root);
    }
}

void Canvas::drawChildren(const LayoutItem& item) {
    for (std::int32_t child = item.firstChild; child >= 0; child = layout[child].nextSibling)
        layout[child].rule->draw(*this, layout[child]);
}

CGRect Canvas::drawn(const CGRect& rect) const {
    if (scale == 1) return rect;
    return CGRectMake(origin.x + rect.minX() * scale, origin.y + rect.minY() * scale, rect.width() * scale,
                      rect.height() * scale);
}

CGRect Canvas::crisp(const CGRect& rect) const {
    const CGRect exact = drawn(rect);
    const double x = toHalfPoint(exact.minX());
    const double y = toHalfPoint(exact.minY());
    return CGRectMake(x, y, toHalfPoint(exact.maxX()) - x, toHalfPoint(exact.maxY()) - y);
}

bool Canvas::isSeen(const CGRect& rect) const {
    if (!seen) return true;
    const CGRect rest = platform::CGRectIntersection(*seen, rect);
    return !platform::CGRectIsNull(rest) && rest.width() > 0 && rest.height() > 0;
}

void Canvas::fill(const CGRect& rect, double radius, CornerStyle corners, Color color) {
    if (rect.width() > 0 && rect.height() > 0 && isVisible(color))
        add(rect, platform::FillShape{{rect, radius, corners}, color, drawnShadow()});
}

std::optional<platform::Shadow> Canvas::drawnShadow() const {
    if (shadow == nullptr) return std::nullopt;
    return platform::Shadow{shadow->color, drawn(shadow->radius), {drawn(shadow->offset.x), drawn(shadow->offset.y)}};
}

void Canvas::drawChildrenShadowed(const LayoutItem& item, const platform::Shadow& thrown) {
    const auto* around = std::exchange(shadow, &thrown);
    drawChildren(item);
    shadow = around;
}

void Canvas::drawChildrenClipped(const LayoutItem& item, double radius, CornerStyle corners) {
    const CGRect rect = drawn(item.frame);
    if (!isSeen(rect)) return;
    const CGRect visible = seen ? platform::CGRectIntersection(*seen, rect) : rect;
    const std::size_t before = into.operations.size();
    into.operations.emplace_back(
        platform::BeginClip{rect, std::min({drawn(radius), rect.width() / 2, rect.height() / 2}), corners});
    const auto around = std::exchange(seen, visible);
    drawChildren(item);
    seen = around;
    if (into.operations.size() == before + 1)
        into.operations.pop_back();
    else
        into.operations.emplace_back(platform::EndClip{});
}

void Canvas::drawChildrenScaled(const LayoutItem& item, double factor) {
    const double scaleAround = scale;
    const CGPoint originAround = origin;
    origin = {origin.x + scale * (1 - factor) * item.frame.midX(), origin.y + scale * (1 - factor) * item.frame.midY()};
    scale *= factor;
    drawChildren(item);
    scale = scaleAround;
    origin = originAround;
}

}  // namespace views
