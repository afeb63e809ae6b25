#include "pathbar/SelectAllTextField.h"

#include <memory>

#include "views/text/Utf8.h"

namespace brindle {

bool SelectAllTextField::selectAll() {
    if (currentEditor() == nullptr) return false;
    currentEditor()->setSelectedRange({0, views::utf16Length(stringValue())});
    return true;
}

void SelectAllTextField::mouseDown(const platform::NSEvent& event) {
    NSTextField::mouseDown(event);
    selectAll();
}

// Once more later: the platform sets the selection by itself after the field has taken the keyboard.
bool SelectAllTextField::becomeFirstResponder() {
    const bool became = NSTextField::becomeFirstResponder();
    platform.dispatch.mainAsync([weakField = weak_from_this()] {
        if (const auto field = std::static_pointer_cast<SelectAllTextField>(weakField.lock())) field->selectAll();
    });
    return became;
}

}  // namespace brindle
