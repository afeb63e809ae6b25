// The file manager of one application, on the machine's disk. Its current directory is the root, so relative paths count from there.
#pragma once

#include "platform/Files.h"

namespace desk {

class Disk;
class Journal;
class LaunchedApplication;

class FilesPort final : public platform::NSFileManager {
public:
    FilesPort(Disk& theDisk, Journal& theJournal, const LaunchedApplication& theApplication)
        : disk(theDisk), journal(theJournal), application(theApplication) {}

    std::optional<platform::FileKind> kindOfFileAtPath(const std::string& path) override;
    std::optional<std::vector<platform::DirectoryEntry>> contentsOfDirectory(const std::string& path,
                                                                             bool skipsHiddenFiles) override;
    std::unique_ptr<platform::NSFileHandle> fileHandleForWritingAtPath(const std::string& path) override;
    bool writeFile(const std::string& path, std::string_view contents) override;
    std::string currentDirectoryPath() override { return "/"; }
    std::string homeDirectory() override;

private:
    // A line that goes to the debug log is told in the journal too.
    void noteLine(const std::string& path, std::string_view line) const;

    Disk& disk;
    Journal& journal;
    const LaunchedApplication& application;
};

}  // namespace desk
