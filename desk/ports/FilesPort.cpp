#include "desk/ports/FilesPort.h"

#include <fstream>
#include <functional>
#include <utility>

#include "desk/disk/Disk.h"
#include "desk/processes/Journal.h"
#include "desk/processes/LaunchedApplication.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

constexpr const char* debugLog = "/tmp/Orvane-debug.log";

class FileHandlePort final : public platform::NSFileHandle {
public:
    FileHandlePort(const std::string& hostPath, std::function<void(std::string_view)> theWritten)
        : stream(hostPath, std::ios::in | std::ios::out | std::ios::binary), written(std::move(theWritten)) {}

    bool isOpen() const { return stream.is_open(); }
    bool seekToEnd() override { return stream.is_open() && stream.seekp(0, std::ios::end).good(); }
    // Flushed, so that others who read the file see it at once.
    bool write(std::string_view contentsOf) override {
        if (!stream.is_open()) return false;
        stream.write(contentsOf.data(), static_cast<std::streamsize>(contentsOf.size()));
        written(contentsOf);
        return stream.flush().good();
    }
    bool close() override {
        if (!stream.is_open()) return false;
        stream.close();
        return !stream.fail();
    }

private:
    std::fstream stream;
    std::function<void(std::string_view)> written;
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
    auto handle = std::make_unique<FileHandlePort>(
        *hostPath, [this, absolute](std::string_view contents) { noteLine(absolute, contents); });
    if (!handle->isOpen()) return nullptr;
    return handle;
}

bool FilesPort::writeFile(const std::string& path, std::string_view contents) {
    if (!isSound(path)) return false;
    const std::string absolute = platform::standardizedPath(path, "/");
    const bool hasFolder = disk.kind(platform::deletingLastPathComponent(absolute)) == platform::FileKind::directory;
    const bool isWritten = hasFolder && disk.makeFile(absolute, contents);
    if (isWritten) noteLine(absolute, contents);
    return isWritten;
}

void FilesPort::noteLine(const std::string& path, std::string_view line) const {
    constexpr std::string_view endOfDate = "] ";
    const std::size_t date = line.find(endOfDate);
    if (path != debugLog || date == std::string_view::npos) return;
    std::string_view message = line.substr(date + endOfDate.size());
    if (message.ends_with('\n')) message.remove_suffix(1);
    journal.note(application.processIdentifier(), "log " + std::string(message));
}

std::string FilesPort::homeDirectory() {
    return disk.home();
}

}  // namespace desk
