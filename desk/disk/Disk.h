// The Mac's disk: a mount table from the Mac's paths to host folders. The startup volume is a sample made fresh, or a host folder, read-only;
// scratch folders for what the system writes always lie over it. Nothing else of the host is ever written. Paths are the Mac's, absolute; symbolic links
// mean Mac paths too, so that no path leads out of the mounted folders.
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

    // Read-only, and so are the applications it holds, which show beside the installed copy of ours. Empty on success, else one line saying what is wrong (no such host folder, ...).
    std::optional<std::string> useAsStartupVolume(const std::string& hostFolder);
    std::optional<std::string> mount(const std::string& path, const std::string& hostFolder);

    // Symbolic links are followed. Mount points and their parents exist.
    std::optional<platform::FileKind> kind(const std::string& path) const;
    // Not followed: whether the entry itself is there.
    bool exists(const std::string& path) const;
    // What a symbolic link holds; empty for anything else.
    std::optional<std::string> linkTarget(const std::string& path) const;
    // Empty when it is no folder or can't be listed; in the host's order. Names that aren't UTF-8 aren't listed. Mount points show as directories.
    std::optional<std::vector<DiskEntry>> list(const std::string& path) const;
    // As long as it stays the same, so does list(). Costs one look at the folder; empty when it is none.
    struct Stamp {
        std::uint64_t changes = 0;
        std::uint64_t identity = 0;
        platform::Date modified;
        platform::Date changed;
        friend bool operator==(const Stamp&, const Stamp&) = default;
    };
    std::optional<Stamp> stamp(const std::string& path) const;
    struct Attributes {
        std::uint64_t size = 0;
        platform::Date modified;
    };
    std::optional<Attributes> attributes(const std::string& path) const;

    // Of the sample volume and the scratch folders only; false elsewhere and on failure. Parents are made as needed.
    bool makeFolder(const std::string& path);
    bool makeFile(const std::string& path, std::string_view contents);
    // The target is what the link holds, absolute or relative to its folder; it need not exist.
    bool makeSymbolicLink(const std::string& path, const std::string& target);
    // A folder goes with all that it holds. Mount points and their parents stay.
    bool remove(const std::string& path);
    // Folders with all that they hold; links are copied as links. The destination is the new entry itself, and nothing may be there.
    bool copy(const std::string& source, const std::string& destination);
    // The same; one step, within one volume.
    bool move(const std::string& source, const std::string& destination);
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
    // Where the walk along a path ended: without symbolic links but possibly the last one.
    struct Place {
        std::string path;
        std::string host;  // nothing need be there
        bool exists = false;
        bool isDirectory = false;
        bool isLink = false;
    };
    enum class Last { followed, taken };
    enum class Missing { refused, allowed };

    std::optional<Place> straightPlace(std::string_view path) const;
    std::optional<Place> walk(std::string_view path, Last last, Missing missing) const;
    Place root() const;
    Place placeIn(const Place& folder, std::string_view name) const;
    const Mount& mountOf(std::string_view path) const;
    bool isMountOrParentOfOne(std::string_view path) const;
    std::optional<Place> placeToWrite(const std::string& path, Last last);
    std::optional<std::string> setMount(const std::string& path, const std::string& hostFolder, bool writable);
    // The applications in sight are those of the startup volume, whatever it was before.
    void replaceApplications(const std::string& volumeBefore);
    void addMountPoints(const std::string& path, std::vector<DiskEntry>& entries) const;

    std::string temporaryFolder;
    std::string homePath = "/Users/ana";
    std::vector<Mount> mounts;  // longest path first; the startup volume is the last
    std::set<std::string> unreadable;
    // What the machine itself has made, removed, mounted: the host's clock is too coarse to tell two such changes apart.
    std::uint64_t changes = 0;
};

}  // namespace desk
