#include "play/DiskTree.h"

#include "desk/disk/Disk.h"
#include "play/Json.h"
#include "views/text/Utf8.h"

namespace play {

namespace {

QJsonObject fileAt(const desk::Disk& disk, const std::string& path) {
    const auto contents = disk.read(path);
    const bool isText = contents && views::isWellFormed(*contents);
    const std::uint64_t size =
        contents ? contents->size() : disk.attributes(path).value_or(desk::Disk::Attributes()).size;
    return {{"size", static_cast<double>(size)}, {"text", jsonText(isText ? contents : std::nullopt)}};
}

void addBelow(const desk::Disk& disk, const std::string& path, const std::string& prefix, QJsonObject& tree) {
    for (const desk::DiskEntry& entry : disk.list(path).value_or(std::vector<desk::DiskEntry>())) {
        const std::string place = path == "/" ? "/" + entry.name : path + "/" + entry.name;
        const QString key = QString::fromStdString(prefix + entry.name);
        if (const auto target = disk.linkTarget(place)) {
            tree.insert(key, QJsonObject{{"link", jsonText(target)}});
        } else if (entry.isDirectory) {
            tree.insert(key, QJsonObject{{"folder", true}});
            addBelow(disk, place, prefix + entry.name + "/", tree);
        } else {
            tree.insert(key, fileAt(disk, place));
        }
    }
}

}  // namespace

QJsonObject treeBelow(const desk::Disk& disk, const std::string& path) {
    QJsonObject tree;
    addBelow(disk, path, "", tree);
    return tree;
}

}  // namespace play
