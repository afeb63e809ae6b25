#include "desk/disk/Disk.h"
#include "desk/disk/DiskPaths.h"
#include "desk/disk/HostFolder.h"
#include "platform/FileURL.h"

namespace desk {

void Disk::setUnreadable(const std::string& path) {
    ++changes;
    if (const auto place = walk(path, Last::followed, Missing::allowed)) unreadable.insert(place->path);
}

bool Disk::isWritable(const std::string& path) const {
    const auto place = walk(path, Last::followed, Missing::allowed);
    return place && mountOf(place->path).writable;
}

std::optional<Disk::Place> Disk::placeToWrite(const std::string& path, Last last) {
    auto place = walk(path, last, Missing::allowed);
    const bool allowed = place && mountOf(place->path).writable;
    if (!allowed) return std::nullopt;
    // Writing to a file that is there changes no list.
    if (!place->exists || last == Last::taken) ++changes;
    return place;
}

bool Disk::makeFolder(const std::string& path) {
    const auto place = placeToWrite(path, Last::followed);
    return place && host::makeFolders(place->host);
}

bool Disk::makeFile(const std::string& path, std::string_view contents) {
    const auto place = placeToWrite(path, Last::followed);
    return place && !place->isDirectory && host::makeFolders(platform::deletingLastPathComponent(place->host)) &&
           host::write(place->host, contents);
}

bool Disk::makeSymbolicLink(const std::string& path, const std::string& target) {
    const auto place = placeToWrite(path, Last::taken);
    return place && !place->exists && !target.empty() &&
           host::makeFolders(platform::deletingLastPathComponent(place->host)) && host::makeLink(place->host, target);
}

bool Disk::remove(const std::string& path) {
    const auto place = placeToWrite(path, Last::taken);
    return place && place->exists && !isMountOrParentOfOne(place->path) && host::removeAll(place->host);
}

bool Disk::copy(const std::string& source, const std::string& destination) {
    const auto from = walk(source, Last::taken, Missing::refused);
    const auto to = placeToWrite(destination, Last::taken);
    if (!from || !to || to->exists || isAtOrBelow(from->path, to->path)) return false;
    return host::makeFolders(platform::deletingLastPathComponent(to->host)) && host::copyAll(from->host, to->host);
}

bool Disk::move(const std::string& source, const std::string& destination) {
    const auto from = placeToWrite(source, Last::taken);
    const auto to = placeToWrite(destination, Last::taken);
    const bool isAllowed = from && from->exists && to && !to->exists && !isMountOrParentOfOne(from->path) &&
                           !isAtOrBelow(from->path, to->path);
    if (!isAllowed) return false;
    if (&mountOf(from->path) != &mountOf(to->path)) return copy(source, destination) && remove(source);
    return host::makeFolders(platform::deletingLastPathComponent(to->host)) && host::rename(from->host, to->host);
}

}  // namespace desk
