#include "desk/ports/FilesPort.h"

#include <fstream>
#include <utility>

#include "desk/disk/Disk.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

class FileHandlePort final : public platform::NSFileHandle {
public:
    explicit FileHandlePort(const std::string& hostPath)
        : stream(hostPath, std::ios::in | std::ios::out | std::ios::binary) {}

    bool isOpen() const { return stream.is_open(); }
    bool seekToEnd() override { return stream.is_open() && stream.seekp(0, std::ios::end).good(); }
    // Flushed, so that others who read the file see it at once.
    bool write(std::string_view contentsOf) override {
        if (!stream.is_open()) return false;
        stream.write(contentsOf.data(), static_cast<std::streamsize>(contentsOf.size()));
        return stream.flush().good();
    }
    bool close() override {
        if (!stream.is_open()) return false;
        stream.close();
        return !stream.fail();
    }

private:
    std::fstream stream;
};

bool isSound(const std::string& path) {
    return !path.empty() && path.find('\0') == std::string::npos;
}

}  // namespace

std::optional<platform::FileKind> FilesPort::kindOfFileAtPath(const std::string& path) {
    if (!isSound(path)) return std::nullopt;
    return disk.kind(platform::standardizedPath(path, "/"));
}

std::optional<std::vector<platform::DirectoryEntry>> FilesPort::contentsOfDirectory(const std::string& path,
                                                                                    bool skipsHiddenFiles) {
    if (!isSound(path)) return std::nullopt;
    auto listed = disk.list(platform::standardizedPath(path, "/"));
    if (!listed) return std::nullopt;
    std::vector<platform::DirectoryEntry> entries;
    entries.reserve(listed->size());
    for (DiskEntry& entry : *listed)
        if (!skipsHiddenFiles || !entry.isHidden)
            entries.push_back({std::move(entry.name), entry.isDirectory, entry.isPackage});
    return entries;
}

std::unique_ptr<platform::NSFileHandle> FilesPort::fileHandleForWritingAtPath(const std::string& path) {
    if (kindOfFileAtPath(path) != platform::FileKind::file) return nullptr;
    const std::string absolute = platform::standardizedPath(path, "/");
    const auto hostPath = disk.hostPath(absolute);
    if (!hostPath || !disk.isWritable(absolute)) return nullptr;
    auto handle = std::make_unique<FileHandlePort>(*hostPath);
    if (!handle->isOpen()) return nullptr;
    return handle;
}

bool FilesPort::writeFile(const std::string& path, std::string_view contents) {
    if (!isSound(path)) return false;
    const std::string absolute = platform::standardizedPath(path, "/");
    const bool hasFolder = disk.kind(platform::deletingLastPathComponent(absolute)) == platform::FileKind::directory;
    return hasFolder && disk.makeFile(absolute, contents);
}

std::string FilesPort::homeDirectory() {
    return disk.home();
}

}  // namespace desk
