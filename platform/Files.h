// Files and folders, by absolute path in UTF-8. Symbolic links are followed except in listings. Failures answer false or empty. Main thread
// unless said otherwise.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

enum class FileKind { file, directory };

// An entry of a listed folder, with what could be learnt about it on the way. Of a symbolic link these are the link's own: it is no directory.
struct DirectoryEntry {
    std::string name;
    std::optional<bool> isDirectory;
    std::optional<bool> isPackage;
};

class NSFileHandle {
public:
    virtual ~NSFileHandle() = default;
    virtual bool seekToEnd() = 0;
    virtual bool write(std::string_view contentsOf) = 0;
    virtual bool close() = 0;
};

class NSFileManager {
public:
    virtual ~NSFileManager() = default;

    bool fileExistsAtPath(const std::string& path) { return kindOfFileAtPath(path).has_value(); }
    // fileExistsAtPath:isDirectory: in one answer; empty when nothing is there.
    virtual std::optional<FileKind> kindOfFileAtPath(const std::string& path) = 0;

    // Every entry once, in no order; empty when it can't be listed.
    virtual std::optional<std::vector<DirectoryEntry>> contentsOfDirectory(const std::string& path,
                                                                           bool skipsHiddenFiles) = 0;

    // Null when it can't be opened; it isn't created.
    virtual std::unique_ptr<NSFileHandle> fileHandleForWritingAtPath(const std::string& path) = 0;
    // Creates or replaces the file.
    virtual bool writeFile(const std::string& path, std::string_view contents) = 0;

    virtual std::string currentDirectoryPath() = 0;
    virtual std::string homeDirectory() = 0;
};

}  // namespace platform
