// What a field looks like: the whole text, shortened in its middle, while it isn't edited; else the part around the caret, with selection or caret.
#include <algorithm>

#include "views/NSTextField.h"
#include "views/PixelGrid.h"

namespace views {

namespace {

constexpr double lineFragmentPadding = 2;
constexpr double caretWidth = 1;
constexpr double opacityWithoutKeyboard = 0.4;

platform::RoundedShape boxed(const platform::CGRect& rect) {
    return {rect, 0, platform::CornerStyle::circular};
}

}  // namespace

// As high as a line, in the middle.
platform::CGRect NSTextField::textArea() const {
    const double height = platform.text.metrics(font).lineHeight();
    const platform::CGRect& all = frame();
    return platform::CGRectMake(all.minX() + lineFragmentPadding, all.midY() - height / 2,
                                std::max(0.0, all.width() - 2 * lineFragmentPadding), height);
}

double NSTextField::positionOf(std::size_t offset) const {
    return platform.text.caretPosition(stringValue(), font, offset);
}

void NSTextField::setFrame(const platform::CGRect& frame) {
    const bool isOther = frame != this->frame();
    NSView::setFrame(frame);
    if (isOther && editor && editor->state().selectedText().empty()) scrollToCaret();
}

// No further than needed, and never past the end of the text.
void NSTextField::scrollToCaret() {
    const double room = textArea().width() - caretWidth;
    const double caret = positionOf(editor->state().caret());
    scrolled = std::min(std::max(scrolled, caret - room), caret);
    scrolled = std::max(0.0, std::min(scrolled, platform.text.width(stringValue(), font) - room));
}

void NSTextField::drawShapes(platform::Drawing& into) const {
    if (drawsBackground)
        into.operations.emplace_back(
            platform::FillShape{boxed(frame()), platform::Color::of(platform::ColorRole::controlBackground)});
    if (isBordered)
        into.operations.emplace_back(platform::StrokeShape{boxed(platform::CGRectInset(frame(), 0.5, 0.5)),
                                                           platform::Color::of(platform::ColorRole::separator), 1});
    if (!editor) return;
    if (focusRingType != NSFocusRingType::none)
        into.operations.emplace_back(
            platform::StrokeShape{boxed(frame()), platform::Color::of(platform::ColorRole::accent, 0.5), 3});
    const platform::CGRect area = textArea();
    const double left = area.minX() - scrolled;
    const TextFieldEngine& state = editor->state();
    const bool hasKeyboard = window() != nullptr && window()->isKeyWindow();
    if (state.selectionBegin() == state.selectionEnd()) {
        if (!hasKeyboard) return;
        const double x = toHalfPoint(left + positionOf(state.caret()));
        into.operations.emplace_back(
            platform::FillShape{boxed(platform::CGRectMake(x, area.minY(), caretWidth, area.height())),
                                platform::Color::of(platform::ColorRole::primary)});
        return;
    }
    for (const platform::LineStretch& selected :
         platform.text.stretches(stringValue(), font, state.selectionBegin(), state.selectionEnd())) {
        const double begin = std::max(frame().minX(), toHalfPoint(left + selected.begin));
        const double end = std::min(frame().maxX(), toHalfPoint(left + selected.end));
        if (end > begin)
            into.operations.emplace_back(platform::FillShape{
                boxed(platform::CGRectMake(begin, area.minY(), end - begin, area.height())),
                platform::Color::of(platform::ColorRole::selectedText, hasKeyboard ? 1 : opacityWithoutKeyboard)});
    }
}

void NSTextField::drawText(platform::Drawing& into) const {
    const std::string& text = stringValue();
    platform::CGRect line = textArea();
    if (text.empty() || line.width() <= 0) return;
    const platform::Color color = platform::Color::of(platform::ColorRole::primary);
    if (!editor && lineBreakMode == NSLineBreakMode::byTruncatingMiddle) {
        into.operations.emplace_back(
            platform::DrawText{platform.text.truncatedInMiddle(text, font, line.width()), font, color, line});
        return;
    }
    into.operations.emplace_back(platform::BeginClip{frame()});
    line.origin.x -= scrolled;
    line.size.width = std::max(line.width(), platform.text.width(text, font));
    into.operations.emplace_back(platform::DrawText{text, font, color, line});
    into.operations.emplace_back(platform::EndClip{});
}

}  // namespace views
