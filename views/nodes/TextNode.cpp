#include "views/nodes/TextNode.h"

#include <algorithm>
#include <cmath>

#include "views/Canvas.h"
#include "views/LayoutPass.h"
#include "views/MenuItems.h"
#include "views/PixelGrid.h"

namespace views {

namespace {

constexpr double roundingError = 0.01;  // of shares of a length, which must not cost a text its middle

void addLine(Canvas& canvas, const LayoutItem& item, std::string line, const CGRect& frame) {
    const CGRect rect = canvas.drawn(frame);
    if (!line.empty()) canvas.add(rect, platform::DrawText{std::move(line), canvas.drawn(item.font), item.color, rect});
}

}  // namespace

void TextNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    LayoutItem& item = pass.openLeaf(*this, view, opening);
    const bool isOneLine = item.textStyle.lineLimit == 1 || text.find('\n') == std::string::npos;
    item.natural = isOneLine
                       ? CGSize{upToHalfPoints(pass.text.width(text, item.font)), pass.metrics(item.font).lineHeight()}
                       : sizeOfLines(pass, item, infinity);
}

CGSize TextNode::measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    const LayoutItem& item = pass[index];
    if (proposal.width == unspecified || item.natural.width <= proposal.width) return item.natural;
    const double least = std::min(item.natural.width, std::ceil(pass.text.width("…", item.font)));
    const double width = std::max(proposal.width, least);
    if (item.textStyle.lineLimit == 1) return {width, item.natural.height};
    return sizeOfLines(pass, item, width);
}

CGSize TextNode::sizeOfLines(LayoutPass& pass, const LayoutItem& item, double width) const {
    const TextStyle& style = item.textStyle;
    CGSize size;
    for (const std::string& line : pass.text.lines(text, item.font, width, style.lineLimit, style.truncation)) {
        size.width = std::max(size.width, upToHalfPoints(pass.text.width(line, item.font)));
        size.height += pass.metrics(item.font).lineHeight();
    }
    return size;
}

void TextNode::draw(Canvas& canvas, const LayoutItem& item) const {
    if (!canvas.isAt(Canvas::Stratum::texts) || text.empty() || !Canvas::isVisible(item.color)) return;
    const bool fits = item.natural.width <= item.frame.width() + roundingError;
    const double lineHeight = canvas.text.metrics(item.font).lineHeight();
    const bool isOneLine = item.textStyle.lineLimit == 1 || (fits && item.natural.height < 2 * lineHeight);
    if (isOneLine)
        addLine(canvas, item, fits ? text : shortened(canvas, item), item.frame);
    else
        drawLines(canvas, item, lineHeight);
}

std::string TextNode::shortened(Canvas& canvas, const LayoutItem& item) const {
    const double width = item.frame.width();
    if (item.textStyle.truncation == TextTruncation::middle)
        return canvas.text.truncatedInMiddle(text, item.font, width);
    return canvas.text.lines(text, item.font, width, 1, TextTruncation::tail).front();
}

void TextNode::drawLines(Canvas& canvas, const LayoutItem& item, double lineHeight) const {
    const TextStyle& style = item.textStyle;
    const double width = item.frame.width();
    CGRect rect = item.frame;
    rect.size.height = lineHeight;
    for (const std::string& line :
         canvas.text.lines(text, item.font, width + roundingError, style.lineLimit, style.truncation)) {
        rect.size.width = canvas.text.width(line, item.font);
        rect.origin.x = item.frame.minX() + offsetOf(style.alignment, width - rect.width());
        addLine(canvas, item, line, rect);
        rect.origin.y += lineHeight;
    }
}

void TextNode::addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const {
    items.push_back(labelledMenuItem(view));
}

}  // namespace views
