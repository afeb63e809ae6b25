// The state of the machine and of the application on it, as one JSON value: what `state` writes and `expect` looks at. It reads what the parts publish and changes nothing.
#pragma once

#include <QJsonObject>

namespace play {

class Session;

QJsonObject stateOf(Session& session);

}  // namespace play
