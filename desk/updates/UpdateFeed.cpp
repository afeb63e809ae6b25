#include "desk/updates/UpdateFeed.h"

#include <QUrl>

#include "desk/disk/Disk.h"
#include "desk/updates/Appcast.h"

namespace desk {

std::optional<std::string> UpdateFeed::fetch(const std::string& address) const {
    if (source.kind == Kind::told) return source.text;
    if (source.kind == Kind::off) return std::nullopt;
    const std::string path = pathOfFileURL(address);
    const auto attributes = disk.attributes(path);
    return attributes && attributes->size <= largestFeed ? disk.read(path) : std::nullopt;
}

std::string pathOfFileURL(const std::string& url) {
    const QUrl read(QString::fromStdString(url));
    return read.isValid() && read.scheme() == u"file" && read.host().isEmpty() ? read.path().toStdString() : "";
}

}  // namespace desk
