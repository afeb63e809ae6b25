// A one-line text field. While it is its window's first responder a field editor holds its text, and it shows the part around the caret; otherwise it shows its text shortened. Key events
// come from the window, presses from the host. It decides nothing about Return and Escape: those are its target's and its delegate's.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Platform.h"
#include "views/FieldEditor.h"
#include "views/NSTextFieldDelegate.h"
#include "views/NSView.h"

namespace views {

enum class NSFocusRingType { standard = 0, none = 1, exterior = 2 };
enum class NSLineBreakMode { byClipping = 2, byTruncatingMiddle = 5 };

class NSTextField : public NSView {
public:
    explicit NSTextField(platform::Platform& thePlatform) : platform(thePlatform) {}

    const std::string& stringValue() const { return editor ? editor->string() : ownText; }
    // Tells no delegate. In a field that is being edited the caret goes to the text's end.
    void setStringValue(std::string text);

    void setBordered(bool value) { isBordered = value; }
    void setDrawsBackground(bool value) { drawsBackground = value; }
    void setFocusRingType(NSFocusRingType type) { focusRingType = type; }
    void setFont(platform::Font theFont) { font = theFont; }
    void setLineBreakMode(NSLineBreakMode mode) { lineBreakMode = mode; }
    void setDelegate(std::weak_ptr<NSTextFieldDelegate> theDelegate) { delegate = std::move(theDelegate); }
    // The action runs at Return, while its target exists.
    void setTarget(std::weak_ptr<void> theTarget) { target = std::move(theTarget); }
    void setAction(std::function<void()> theAction) { action = std::move(theAction); }

    // Present while the field has its window's keyboard.
    FieldEditor* currentEditor() { return editor ? &*editor : nullptr; }
    const FieldEditor* currentEditor() const { return editor ? &*editor : nullptr; }

    bool becomeFirstResponder() override;
    bool resignFirstResponder() override;
    void keyDown(const platform::NSEvent& event) override;
    // Takes the keyboard. The caret stays where it is: the one field there is selects its whole text on a click.
    void mouseDown(const platform::NSEvent& event) override;

    void setFrame(const platform::CGRect& frame) override;
    void drawShapes(platform::Drawing& into) const override;
    void drawText(platform::Drawing& into) const override;
    std::string accessibilityValue() const override { return stringValue(); }

private:
    void doCommand(std::string_view command);
    void afterEditing(const std::string& textBefore);
    // In NSTextField+Drawing.cpp. Points from the beginning of the text.
    platform::CGRect textArea() const;
    double positionOf(std::size_t offset) const;
    void scrollToCaret();

    platform::Platform& platform;
    std::string ownText;
    std::optional<FieldEditor> editor;
    std::weak_ptr<NSTextFieldDelegate> delegate;
    std::weak_ptr<void> target;
    std::function<void()> action;
    platform::Font font;
    NSLineBreakMode lineBreakMode = NSLineBreakMode::byClipping;
    NSFocusRingType focusRingType = NSFocusRingType::standard;
    bool isBordered = true;
    bool drawsBackground = true;
    double scrolled = 0;  // how far the text's beginning lies left of the field's
};

}  // namespace views
