// The open menu and the front popover as scripts see them. It reads what they show.
#pragma once

#include <optional>
#include <string_view>

#include <QJsonValue>

#include "platform/Geometry.h"

namespace desk {
class Machine;
}  // namespace desk

namespace play {

// For the state; null when none is open.
QJsonValue menuOf(const desk::Machine& machine);
QJsonValue popoverOf(const desk::Machine& machine);

// The middle of the button with that label in the front popover, on the screen.
std::optional<platform::CGPoint> popoverControl(const desk::Machine& machine, std::string_view label);

}  // namespace play
