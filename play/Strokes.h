// What is painted in a window, as scripts read it: a JSON list of strokes, back to front, in the colours' roles. It leaves out what a clip hides wholly and cuts nothing else.
#pragma once

#include <QJsonArray>

#include "platform/Drawing.h"

namespace play {

// Rectangles are [x, y, width, height] in points from the content's top left corner, y downward.
QJsonArray strokesOf(const platform::Drawing& drawing);

}  // namespace play
