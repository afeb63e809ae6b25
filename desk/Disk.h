// The Mac's disk: a mount table from the Mac's paths to host folders. The startup volume is a sample made fresh, or a host folder, read-only;
// scratch folders for what the system writes always lie over it. Nothing else of the host is ever written. Paths are the Mac's, absolute.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"
#include "platform/Time.h"

namespace desk {

struct DiskEntry {
    std::string name;
    bool isDirectory = false;  // of the entry itself: false for a symbolic link to a folder
    bool isPackage = false;    // a directory whose name ends as a package's does (.app, .bundle, ...)
    bool isHidden = false;     // its name begins with a dot
};

class Disk {
public:
    // Makes the sample volume and the scratch folders in a fresh temporary folder of the host, removed at the end.
    Disk();
    ~Disk();
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;

    // Read-only. Empty on success, else one line saying what is wrong (no such host folder, ...).
    std::optional<std::string> useAsStartupVolume(const std::string& hostFolder);
    std::optional<std::string> mount(const std::string& path, const std::string& hostFolder);

    // Symbolic links are followed. Mount points and their parents exist.
    std::optional<platform::FileKind> kind(const std::string& path) const;
    // Not followed: whether the entry itself is there.
    bool exists(const std::string& path) const;
    // Empty when it is no folder or can't be listed; in the host's order. Names that aren't UTF-8 aren't listed. Mount points show as directories.
    std::optional<std::vector<DiskEntry>> list(const std::string& path) const;
    struct Attributes {
        std::uint64_t size = 0;
        platform::Date modified;
    };
    std::optional<Attributes> attributes(const std::string& path) const;

    // Of the sample volume and the scratch folders only; false elsewhere and on failure. Parents are made as needed.
    bool makeFolder(const std::string& path);
    bool makeFile(const std::string& path, std::string_view contents);
    bool remove(const std::string& path);
    bool isWritable(const std::string& path) const;
    std::optional<std::string> read(const std::string& path) const;
    void setUnreadable(const std::string& path);

    const std::string& home() const { return homePath; }

    // Where a path lies on the host; empty for a folder that exists only because something is mounted below it.
    std::optional<std::string> hostPath(const std::string& path) const;

private:
    struct Mount {
        std::string path;
        std::string host;
        bool writable;
    };
    const Mount* mountOf(const std::string& path) const;
    bool isParentOfMount(const std::string& path) const;
    void makeSampleVolume();

    std::string temporaryFolder;
    std::string homePath = "/Users/ana";
    std::vector<Mount> mounts;
    std::set<std::string> unreadable;
};

}  // namespace desk
