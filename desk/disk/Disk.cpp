#include "desk/disk/Disk.h"

#include <algorithm>
#include <array>
#include <deque>
#include <stdexcept>

#include "desk/disk/DiskPaths.h"
#include "desk/disk/HostFolder.h"
#include "desk/disk/SampleVolume.h"
#include "platform/FileURL.h"
#include "views/text/Utf8.h"

namespace desk {

namespace {

constexpr int mostLinks = 32;
constexpr const char* installedName = "Orvane.app";
constexpr std::array<std::string_view, 14> packageExtensions = {
    "app",    "appex",         "bundle",     "component", "download", "kext",  "mpkg",
    "plugin", "photoslibrary", "playground", "prefpane",  "rtfd",     "saver", "xcodeproj"};

void pushFront(std::deque<std::string>& names, std::string_view path) {
    const std::vector<std::string> components = platform::pathComponents(path);
    names.insert(names.begin(), components.begin() + 1, components.end());
}

bool isPackageName(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0) return false;
    std::string extension(name.substr(dot + 1));
    for (char& letter : extension)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return std::find(packageExtensions.begin(), packageExtensions.end(), extension) != packageExtensions.end();
}

DiskEntry entryNamed(std::string name, bool isDirectory) {
    const bool isPackage = isDirectory && isPackageName(name);
    const bool isHidden = name.front() == '.';
    return {std::move(name), isDirectory, isPackage, isHidden};
}

}  // namespace

Disk::Disk() {
    const std::optional<std::string> folder = host::makeTemporaryFolder();
    if (!folder) throw std::runtime_error("no temporary folder can be made");
    temporaryFolder = *folder;
    const std::pair<const char*, std::string> scratch[] = {
        {"/", "volume"}, {"/tmp", "tmp"}, {"/System", "system"}, {"/Applications", "applications"}};
    for (const auto& [path, name] : scratch) {
        host::makeFolders(temporaryFolder + "/" + name);
        setMount(path, temporaryFolder + "/" + name, true);
    }
    host::copyAll(BRINDLE_BUNDLE, temporaryFolder + "/applications/" + installedName);
    makeScratchContents(*this);
    makeSampleVolume(*this);
}

Disk::~Disk() {
    host::removeAll(temporaryFolder);
}

std::optional<std::string> Disk::useAsStartupVolume(const std::string& hostFolder) {
    const std::string before = mounts.back().host;
    auto problem = setMount("/", hostFolder, false);
    if (!problem) replaceApplications(before);
    return problem;
}

void Disk::replaceApplications(const std::string& volumeBefore) {
    std::erase_if(mounts, [&](const Mount& mount) {
        return !below("/Applications", mount.path).empty() && isAtOrBelow(volumeBefore, mount.host);
    });
    const std::string scratch = temporaryFolder + "/applications";
    std::vector<std::string> replaced;
    host::list(scratch, [&](std::string_view name, auto) {
        if (name != installedName) replaced.push_back(joined(scratch, name));
    });
    for (const std::string& entry : replaced) host::removeAll(entry);
    const std::string folder = joined(mounts.back().host, "Applications");
    host::list(folder, [&](std::string_view name, host::EntryKind kind) {
        if (kind == host::EntryKind::directory && name != installedName && views::isWellFormed(name))
            setMount(joined("/Applications", name), joined(folder, name), false);
    });
}

std::optional<std::string> Disk::mount(const std::string& path, const std::string& hostFolder) {
    if (path.empty() || path.front() != '/') return "not an absolute path: " + path;
    const std::string standardized = platform::standardizedPath(path, "/");
    if (standardized == "/") return "the startup volume is no mount point";
    return setMount(standardized, hostFolder, false);
}

std::optional<std::string> Disk::setMount(const std::string& path, const std::string& hostFolder, bool writable) {
    const std::optional<std::string> folder = host::existingFolder(hostFolder);
    if (!folder) return "no such folder: " + hostFolder;
    ++changes;
    std::erase_if(mounts, [&](const Mount& mount) { return mount.path == path; });
    mounts.push_back({path, *folder, writable});
    std::stable_sort(mounts.begin(), mounts.end(),
                     [](const Mount& a, const Mount& b) { return a.path.size() > b.path.size(); });
    return std::nullopt;
}

const Disk::Mount& Disk::mountOf(std::string_view path) const {
    for (const Mount& mount : mounts)
        if (isAtOrBelow(mount.path, path)) return mount;
    return mounts.back();
}

bool Disk::isMountOrParentOfOne(std::string_view path) const {
    return std::any_of(mounts.begin(), mounts.end(), [&](const Mount& mount) { return isAtOrBelow(path, mount.path); });
}

Disk::Place Disk::root() const {
    return {"/", mounts.back().host, true, true, false};
}

Disk::Place Disk::placeIn(const Place& folder, std::string_view name) const {
    Place place;
    place.path = joined(folder.path, name);
    const Mount& mount = mountOf(place.path);
    place.host = place.path == mount.path ? mount.host : joined(folder.host, name);
    const auto kind = host::kindOf(place.host);
    place.exists = kind.has_value();
    place.isDirectory = kind == host::EntryKind::directory;
    place.isLink = kind == host::EntryKind::link;
    if (!place.isDirectory && isMountOrParentOfOne(place.path)) {
        // A link of the host's in this place would lead out of the mounted folders.
        if (place.exists) place.host = temporaryFolder + "/nothing";
        place.exists = place.isDirectory = true;
        place.isLink = false;
    }
    return place;
}

std::optional<Disk::Place> Disk::walk(std::string_view path, Last last, Missing missing) const {
    if (auto place = straightPlace(path)) return place;
    if (path.empty() || path.front() != '/' || path.find('\0') != std::string_view::npos) return std::nullopt;
    std::deque<std::string> names;
    pushFront(names, path);
    std::vector<Place> way{root()};
    for (int links = 0; !names.empty();) {
        const std::string name = std::move(names.front());
        names.pop_front();
        if (way.back().exists ? !way.back().isDirectory : missing == Missing::refused) return std::nullopt;
        if (name == ".") continue;
        if (name == "..") {
            if (way.size() > 1) way.pop_back();
            continue;
        }
        way.push_back(placeIn(way.back(), name));
        if (!way.back().isLink || (names.empty() && last == Last::taken)) continue;
        const std::optional<std::string> target = host::linkTarget(way.back().host);
        if (!target || ++links > mostLinks) return std::nullopt;
        pushFront(names, *target);
        way.resize(target->front() == '/' ? 1 : way.size() - 1);
    }
    if (!way.back().exists && missing == Missing::refused) return std::nullopt;
    return way.back();
}

// Where no link lies on the way, it needn't be walked step by step: scripts ask again and again for the folders and selections of all windows, and each line of the log for its file. Empty proves
// nothing.
std::optional<Disk::Place> Disk::straightPlace(std::string_view path) const {
    while (path.size() > 1 && path.back() == '/') path.remove_suffix(1);
    const bool isStandard = path.size() > 1 && path.front() == '/' && path.find("/.") == std::string_view::npos &&
                            path.find("//") == std::string_view::npos && path.find('\0') == std::string_view::npos;
    if (!isStandard || isMountOrParentOfOne(path)) return std::nullopt;
    const Mount& mount = mountOf(path);
    std::string host = joined(mount.host, below(mount.path, path));
    const auto kind = host::kindWithoutLinks(host);
    if (!kind) return std::nullopt;
    return Place{std::string(path), std::move(host), true, kind == host::EntryKind::directory, false};
}

std::optional<platform::FileKind> Disk::kind(const std::string& path) const {
    const auto place = walk(path, Last::followed, Missing::refused);
    if (!place) return std::nullopt;
    return place->isDirectory ? platform::FileKind::directory : platform::FileKind::file;
}

bool Disk::exists(const std::string& path) const {
    return walk(path, Last::taken, Missing::refused).has_value();
}

std::optional<std::string> Disk::linkTarget(const std::string& path) const {
    const auto place = walk(path, Last::taken, Missing::refused);
    return place && place->isLink ? host::linkTarget(place->host) : std::nullopt;
}

std::optional<std::vector<DiskEntry>> Disk::list(const std::string& path) const {
    const auto place = walk(path, Last::followed, Missing::refused);
    if (!place || !place->isDirectory || unreadable.contains(place->path)) return std::nullopt;
    std::vector<DiskEntry> entries;
    const bool isListed = host::list(place->host, [&](std::string_view name, host::EntryKind kind) {
        if (views::isWellFormed(name))
            entries.push_back(entryNamed(std::string(name), kind == host::EntryKind::directory));
    });
    if (!isListed && !isMountOrParentOfOne(place->path)) return std::nullopt;
    addMountPoints(place->path, entries);
    return entries;
}

void Disk::addMountPoints(const std::string& path, std::vector<DiskEntry>& entries) const {
    for (const Mount& mount : mounts) {
        const std::string_view rest = mount.path == path ? std::string_view() : below(path, mount.path);
        if (rest.empty()) continue;
        DiskEntry shown = entryNamed(std::string(rest.substr(0, rest.find('/'))), true);
        const auto same = [&](const DiskEntry& entry) { return entry.name == shown.name; };
        const auto hidden = std::find_if(entries.begin(), entries.end(), same);
        if (hidden == entries.end()) {
            entries.push_back(std::move(shown));
        } else {
            *hidden = std::move(shown);
        }
    }
}

std::optional<Disk::Attributes> Disk::attributes(const std::string& path) const {
    const auto place = walk(path, Last::followed, Missing::refused);
    if (!place) return std::nullopt;
    const auto status = host::statusOf(place->host);
    return status ? Attributes{status->size, status->modified} : Attributes{};
}

std::optional<Disk::Stamp> Disk::stamp(const std::string& path) const {
    const auto place = walk(path, Last::followed, Missing::refused);
    if (!place || !place->isDirectory) return std::nullopt;
    const host::Status status = host::statusOf(place->host).value_or(host::Status{});
    return Stamp{changes, status.identity, status.modified, status.changed};
}

std::optional<std::string> Disk::hostPath(const std::string& path) const {
    const auto place = walk(path, Last::followed, Missing::refused);
    if (!place || !host::kindOf(place->host)) return std::nullopt;
    return place->host;
}

std::optional<std::string> Disk::read(const std::string& path) const {
    const auto place = walk(path, Last::followed, Missing::refused);
    return place ? host::read(place->host) : std::nullopt;
}

}  // namespace desk
