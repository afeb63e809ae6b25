// The state of the machine and of the application on it, as one JSON value: what `state` writes and `expect` looks at. It reads what the parts publish and changes nothing.
#pragma once

#include <string>

#include <QJsonObject>

namespace desk {
struct ServerWindow;
}  // namespace desk

namespace play {

class Session;

QJsonObject stateOf(Session& session);

// What `stacking` calls a window on screen.
std::string nameInStacking(const Session& session, const desk::ServerWindow& window);

}  // namespace play
