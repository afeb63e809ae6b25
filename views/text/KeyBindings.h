// Which command a key means in a text field: the platform's standard key bindings, as far as a single line needs them, and the shortcuts of its Edit menu.
#pragma once

#include <string>
#include <string_view>

#include "platform/Events.h"

namespace views {

// Empty when the key means no command.
std::string_view textCommand(const platform::NSEvent& keyDown);
// The Edit menu's: these pass the field's delegate by.
std::string_view editMenuCommand(const platform::NSEvent& keyDown);
// What the key types; empty for keys that only mean something, and with Command or Control held.
std::string typedText(const platform::NSEvent& keyDown);

}  // namespace views
