// JSON pointers into the state, and comparing what stands there with what a script expects. Numbers compare as doubles.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <QJsonArray>
#include <QJsonValue>

#include "platform/Geometry.h"

namespace play {

// Empty when nothing stands at the pointer ("" is the whole document).
std::optional<QJsonValue> valueAt(const QJsonValue& document, std::string_view pointer);
bool isPointer(std::string_view text);

// Any JSON value, scalars included; empty when the text isn't JSON.
std::optional<QJsonValue> parseJson(std::string_view text);

// Any number that isn't finite or has more digits than a double becomes what a double can hold.
bool equal(const QJsonValue& a, const QJsonValue& b);

// One line.
std::string toText(const QJsonValue& value);

QJsonValue jsonText(std::string_view utf8);
QJsonValue jsonText(const std::optional<std::string>& utf8);
// [x, y, width, height].
QJsonArray jsonFrame(const platform::CGRect& rect);

}  // namespace play
