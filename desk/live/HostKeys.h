// The host's keys as the Mac's: Control and Super are Command, Alt is Option. What types a character keeps it, whatever the host's layout.
#pragma once

#include <QtCore/qnamespace.h>
#include <cstdint>
#include <optional>

#include "desk/keys/KeyStroke.h"
#include "platform/Events.h"

class QKeyEvent;

namespace desk {

// Empty for keys that the Mac has no use for, and for modifiers alone.
std::optional<KeyStroke> keyStrokeOf(const QKeyEvent& event);

// The modifier flags of the platform's events.
std::uint64_t modifierFlagsOf(Qt::KeyboardModifiers modifiers);

}  // namespace desk
