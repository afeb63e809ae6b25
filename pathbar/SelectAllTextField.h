// The path field itself: taking the keyboard and every click select its whole text, so a caret is placed with the keys alone.
#pragma once

#include "views/NSTextField.h"

namespace brindle {

class SelectAllTextField final : public views::NSTextField {
public:
    explicit SelectAllTextField(platform::Platform& thePlatform) : NSTextField(thePlatform), platform(thePlatform) {}

    // False without an editor, which a field without the keyboard has not.
    bool selectAll();

    void mouseDown(const platform::NSEvent& event) override;
    bool becomeFirstResponder() override;

private:
    platform::Platform& platform;
};

}  // namespace brindle
