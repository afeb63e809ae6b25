#include "views/NSTextField.h"

#include <utility>

#include "views/text/KeyBindings.h"

namespace views {

void NSTextField::setStringValue(std::string text) {
    if (editor) {
        editor->setString(std::move(text));
        scrollToCaret();
        return;
    }
    ownText = std::move(text);
    setNeedsDisplay();
}

bool NSTextField::becomeFirstResponder() {
    editor.emplace(platform, ownText, font, [this] { setNeedsDisplay(); });
    editor->doCommandBySelector("selectAll:");
    setNeedsDisplay();
    return true;
}

bool NSTextField::resignFirstResponder() {
    if (!editor) return true;
    ownText = editor->string();
    editor.reset();
    scrolled = 0;
    setNeedsDisplay();
    return true;
}

void NSTextField::mouseDown(const platform::NSEvent& /*event*/) {
    if (window() != nullptr) window()->makeFirstResponder(this);
}

// What it calls may take the field out of its window, and drop it.
void NSTextField::keyDown(const platform::NSEvent& event) {
    const auto keepAlive = shared_from_this();
    if (!editor) return;
    const std::string before = editor->string();
    if (const std::string_view shortcut = editMenuCommand(event); !shortcut.empty())
        editor->doCommandBySelector(shortcut);
    else if (const std::string_view command = textCommand(event); !command.empty())
        doCommand(command);
    else if (const std::string typed = typedText(event); !typed.empty())
        editor->insertText(typed);
    else
        return;
    if (editor) afterEditing(before);
}

void NSTextField::doCommand(std::string_view command) {
    const auto asked = delegate.lock();
    if (asked && asked->control(*this, *editor, command)) return;
    if (!editor) return;
    if (command != "insertNewline:") {
        editor->doCommandBySelector(command);
        return;
    }
    const auto held = target.lock();
    if (!held || !action) return;
    const auto run = action;
    run();
}

void NSTextField::afterEditing(const std::string& textBefore) {
    if (!editor->state().isSelectedAsAWhole()) scrollToCaret();
    setNeedsDisplay();
    const auto told = delegate.lock();
    if (told && editor->string() != textBefore) told->controlTextDidChange(this);
}

}  // namespace views
