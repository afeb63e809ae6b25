#include "views/LaidOutView.h"

#include <utility>

#include "views/Canvas.h"
#include "views/LayoutPass.h"

namespace views {

namespace {

void declareAnew(View& view, const LayoutPass::Declaration& declare) {
    view.children.clear();
    declare(view.children);
}

}  // namespace

LaidOutView::LaidOutView(View theRoot, CGSize size, platform::TextSystem& theText)
    : text(theText), root(std::make_unique<View>(std::move(theRoot))) {
    LayoutPass(text, declareAnew, layout).layOut(*root, size);
}

platform::Drawing LaidOutView::drawing() const {
    platform::Drawing result;
    Canvas(layout, text, LayoutItem::none, result).draw();
    return result;
}

const std::string* LaidOutView::idAt(CGPoint point) const {
    const auto found = layout.frontmost(point, [](const LayoutItem& item) { return item.key != nullptr; });
    return found ? layout[*found].key : nullptr;
}

std::optional<CGRect> LaidOutView::frameOf(std::string_view id) const {
    std::optional<CGRect> frame;
    layout.forEach([&](std::int32_t, const LayoutItem& item) {
        if (item.key != nullptr && *item.key == id) frame = item.frame;
    });
    return frame;
}

CGSize idealSize(View root, platform::TextSystem& text) {
    Layout scratch;
    return LayoutPass(text, declareAnew, scratch).idealSize(root);
}

}  // namespace views
