// The bars on the desk as scripts speak of them: by Finder window, by part. It reads the coordinator's controllers and the elements that their
// panels show.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QJsonArray>

#include "platform/Geometry.h"

namespace play {

class Session;

// The number of the panel over a Finder window; 0 when it has no bar.
std::int64_t panelNumber(const Session& session, std::int64_t finderWindow);
// The window identifier of the bar that this panel is, of whichever copy; empty for other windows.
std::optional<std::string> barOfPanel(const Session& session, std::int64_t panel);

bool isBarPart(std::string_view part);
// Crumbs and chevrons are told apart by a title.
bool barPartHasTitle(std::string_view part);
// Where to click for that part, from the panel's top left corner, y downward; empty when the bar doesn't show it.
std::optional<platform::CGPoint> barPartPoint(const Session& session, std::int64_t panel, std::string_view part,
                                              std::string_view title);

// As it is drawn: edit mode shows with the end of the turn in which it begins, and goes with that in which it ends.
bool showsPathField(const Session& session, std::int64_t panel);
// What its crumbs show, left to right, as the items' identifiers.
std::vector<std::string> drawnCrumbIds(const Session& session, std::int64_t panel);

// The panels front to back, for the state.
QJsonArray panelsOf(Session& session);
std::int64_t barLayouts(const Session& session);

}  // namespace play
