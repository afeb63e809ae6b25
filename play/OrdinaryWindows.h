// The application's ordinary windows as scripts speak of them: by title, by what can be pressed in them. It reads what their views show and changes nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QJsonArray>

#include "platform/Geometry.h"
#include "platform/Windows.h"

namespace play {

class Session;

// On screen, front to back; none without a living copy.
std::vector<platform::NSWindow*> ordinaryWindows(const Session& session);
// The frontmost of that title; null when none is on screen.
platform::NSWindow* ordinaryWindow(const Session& session, std::string_view title);

QJsonArray windowsOf(const Session& session);
// The middle, in screen points, of what can be pressed in the frontmost window and has that label, or that text on it, and can be seen.
std::optional<platform::CGPoint> controlLabelled(const Session& session, std::string_view label);

}  // namespace play
