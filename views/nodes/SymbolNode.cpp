#include "views/nodes/SymbolNode.h"

#include "views/Canvas.h"
#include "views/LayoutPass.h"
#include "views/MenuItems.h"
#include "views/PixelGrid.h"

namespace views {

void SymbolNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    LayoutItem& item = pass.openLeaf(*this, view, opening);
    const CGSize size = pass.text.symbolSize(symbol, item.font).value_or(CGSize{});
    item.natural = {upToHalfPoints(size.width), upToHalfPoints(size.height)};
}

CGSize SymbolNode::measure(LayoutPass& pass, std::int32_t index, const ProposedSize& /*proposal*/) const {
    return pass[index].natural;
}

void SymbolNode::draw(Canvas& canvas, const LayoutItem& item) const {
    if (!canvas.isAt(Canvas::Stratum::texts) || !Canvas::isVisible(item.color)) return;
    const CGRect rect = canvas.drawn(item.frame);
    canvas.add(rect, platform::DrawSymbol{symbol, canvas.drawn(item.font), item.color, rect});
}

void SymbolNode::addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const {
    items.push_back(labelledMenuItem(view));
}

}  // namespace views
