// Whom a text field tells of typing, and asks before it carries out a key's command. Main thread only.
#pragma once

#include <string_view>

namespace views {

class FieldEditor;
class NSTextField;
class NSView;

class NSTextFieldDelegate {
public:
    virtual ~NSTextFieldDelegate() = default;
    // The user has changed the text; the object is the field.
    virtual void controlTextDidChange(NSView* object) = 0;
    // True when the delegate has dealt with the command, and the field is to do nothing.
    virtual bool control(NSTextField& control, FieldEditor& textView, std::string_view doCommandBy) = 0;
};

}  // namespace views
