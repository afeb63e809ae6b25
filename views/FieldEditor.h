// The editing session of a field that has the keyboard: its text and selection, and the commands of the Edit menu on top of those of the engine. It is made when the field takes the
// keyboard and goes when it gives it up; the field tells its delegate what has changed.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Platform.h"
#include "views/text/TextFieldEngine.h"

namespace views {

class FieldEditor {
public:
    // `theLooksChanged` is called when text or selection are set from outside.
    FieldEditor(platform::Platform& thePlatform, std::string text, platform::Font font,
                std::function<void()> theLooksChanged);

    const std::string& string() const { return engine.text(); }
    void setString(std::string text);
    // UTF-16 units.
    NSRange selectedRange() const { return engine.selectedRange(); }
    void setSelectedRange(NSRange range);

    void insertText(std::string_view text) { engine.type(text); }
    // The platform's name of the command; unknown ones do nothing.
    void doCommandBySelector(std::string_view selector);

    const TextFieldEngine& state() const { return engine; }

private:
    void cut();
    void copy();
    void paste();
    void undo() { engine.undo(); }
    void redo() { engine.redo(); }
    void selectAll() { engine.selectAll(); }

    platform::Platform& platform;
    TextFieldEngine engine;
    std::function<void()> looksChanged;
};

}  // namespace views
