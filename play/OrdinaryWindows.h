// The ordinary windows of the application and of System Settings as scripts speak of them: by title, by what can be pressed in them. It reads what their views show and changes nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <QJsonArray>
#include <QJsonValue>

#include "platform/Geometry.h"
#include "platform/Windows.h"

namespace desk {
class Machine;
}  // namespace desk

namespace play {

class Session;

// The frontmost of that title, of either; null when none is on screen.
platform::NSWindow* ordinaryWindow(const Session& session, std::string_view title);

// The application's, on screen, front to back; none without a living copy.
QJsonArray windowsOf(const Session& session);
// Null while it isn't open.
QJsonValue systemSettingsOf(const desk::Machine& machine);
// The middle, in screen points, of what can be pressed in the frontmost window and has that label, or that text on it, and can be seen.
std::optional<platform::CGPoint> controlLabelled(const Session& session, std::string_view label);

}  // namespace play
