// What stands below a path of the machine's disk, as one JSON value. It looks and changes nothing.
#pragma once

#include <string>

#include <QJsonObject>

namespace desk {
class Disk;
}  // namespace desk

namespace play {

// From the path relative to it to what stands there, hidden entries included: a folder, a link, or a file with its size and its text.
QJsonObject treeBelow(const desk::Disk& disk, const std::string& path);

}  // namespace play
