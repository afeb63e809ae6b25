// The file manager of one application, on the machine's disk. Its current directory is the root, so relative paths count from there.
#pragma once

#include "platform/Files.h"

namespace desk {

class Disk;

class FilesPort final : public platform::NSFileManager {
public:
    explicit FilesPort(Disk& theDisk) : disk(theDisk) {}

    std::optional<platform::FileKind> kindOfFileAtPath(const std::string& path) override;
    std::optional<std::vector<platform::DirectoryEntry>> contentsOfDirectory(const std::string& path,
                                                                             bool skipsHiddenFiles) override;
    std::unique_ptr<platform::NSFileHandle> fileHandleForWritingAtPath(const std::string& path) override;
    bool writeFile(const std::string& path, std::string_view contents) override;
    std::string currentDirectoryPath() override { return "/"; }
    std::string homeDirectory() override;

private:
    Disk& disk;
};

}  // namespace desk
