#include "views/FieldEditor.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace views {

FieldEditor::FieldEditor(platform::Platform& thePlatform, std::string text, platform::Font font,
                         std::function<void()> theLooksChanged)
    : platform(thePlatform),
      engine(thePlatform.textBoundaries,
             [&system = thePlatform.text, font](std::string_view shown, std::size_t offset) {
                 return system.caretPosition(shown, font, offset);
             }),
      looksChanged(std::move(theLooksChanged)) {
    engine.setText(std::move(text));
}

void FieldEditor::setString(std::string text) {
    engine.setText(std::move(text));
    looksChanged();
}

void FieldEditor::setSelectedRange(NSRange range) {
    const NSRange before = engine.selectedRange();
    engine.setSelectedRange(range);
    if (engine.selectedRange() != before) looksChanged();
}

// The field is the only one in its window: tabbing on comes back to it, and selects its text as arriving does.
void FieldEditor::doCommandBySelector(std::string_view selector) {
    struct Entry {
        std::string_view selector;
        void (FieldEditor::*handler)();
    };
    static constexpr Entry entries[] = {{"cut:", &FieldEditor::cut},
                                        {"copy:", &FieldEditor::copy},
                                        {"paste:", &FieldEditor::paste},
                                        {"undo:", &FieldEditor::undo},
                                        {"redo:", &FieldEditor::redo},
                                        {"selectAll:", &FieldEditor::selectAll},
                                        {"insertTab:", &FieldEditor::selectAll},
                                        {"insertBacktab:", &FieldEditor::selectAll}};
    const auto* entry = std::find_if(std::begin(entries), std::end(entries),
                                     [&](const Entry& each) { return each.selector == selector; });
    if (entry != std::end(entries))
        (this->*entry->handler)();
    else
        engine.perform(selector);
}

void FieldEditor::cut() {
    copy();
    engine.replaceSelection({});
}

void FieldEditor::copy() {
    if (engine.selectedText().empty()) return;
    platform.pasteboard.clearContents();
    platform.pasteboard.setString(std::string(engine.selectedText()));
}

void FieldEditor::paste() {
    if (const auto text = platform.pasteboard.string()) engine.replaceSelection(*text);
}

}  // namespace views
