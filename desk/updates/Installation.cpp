#include "desk/updates/Installation.h"

#include "desk/disk/Disk.h"
#include "desk/processes/Bundle.h"
#include "desk/updates/UpdateFeed.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

std::string hiddenBeside(const std::string& path, const std::string& ending) {
    const std::string name = "." + std::string(platform::lastPathComponent(path)) + ending;
    return platform::appendingPathComponent(platform::deletingLastPathComponent(path), name);
}

std::string executableOf(const Bundle& bundle) {
    const platform::Value* named = platform::find(bundle.info, "CFBundleExecutable");
    const auto* name = named == nullptr ? nullptr : named->as<std::string>();
    return "/Contents/MacOS/" + (name == nullptr ? bundle.name() : *name);
}

}  // namespace

Installation::Installation(Disk& theDisk, const Bundle& running, std::int32_t processIdentifier)
    : disk(&theDisk),
      path(running.path),
      executable(executableOf(running)),
      fetched(hiddenBeside(path, ".new-" + std::to_string(processIdentifier))),
      setAside(hiddenBeside(path, ".old-" + std::to_string(processIdentifier))) {}

std::optional<std::string> Installation::fetch(const std::string& url) const {
    const std::string source = pathOfFileURL(url);
    if (disk->kind(source + executable) != platform::FileKind::file)
        return "There is no such application at “" + url + "”.";
    if (!disk->isWritable(path)) return "“" + path + "” can't be changed.";
    // What a link leads to, not the link.
    if (disk->copy(source + "/.", fetched)) return std::nullopt;
    discard();
    return "“" + path + "” can't be replaced.";
}

void Installation::discard() const {
    disk->remove(fetched);
}

void Installation::putInPlace() const {
    const bool isReplaced = disk->move(path, setAside) || !disk->exists(path);
    if (isReplaced && disk->move(fetched, path)) {
        disk->remove(setAside);
        return;
    }
    if (isReplaced) disk->move(setAside, path);
    discard();
}

}  // namespace desk
