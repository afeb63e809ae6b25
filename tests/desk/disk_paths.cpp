// Which places of the Mac's disk a path can reach: mounts, links, ways out that must not exist, and hostile names.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "desk/disk/Disk.h"

namespace desk {

namespace {

using platform::FileKind;

// A host folder as somebody might hand in, with a secret beside it that no path may reach.
class HostTree : public ::testing::Test {
protected:
    HostTree() {
        std::string name = std::filesystem::temp_directory_path() / "disk-test-XXXXXX";
        base = ::mkdtemp(name.data());
        std::filesystem::create_directories(base + "/volume/Work/Deep");
        std::ofstream(base + "/secret") << "secret";
        std::ofstream(base + "/volume/Work/notes.txt") << "notes";
    }
    ~HostTree() override { std::filesystem::remove_all(base); }

    void link(const std::string& at, const std::string& target) const {
        std::filesystem::create_symlink(target, base + "/volume/" + at);
    }

    std::string base;
    Disk disk;
};

std::vector<DiskEntry> listed(const Disk& disk, const std::string& path) {
    return disk.list(path).value_or(std::vector<DiskEntry>{{"cannot be listed"}});
}

std::vector<std::string> namesOf(const std::vector<DiskEntry>& entries, bool DiskEntry::*which = nullptr) {
    std::vector<std::string> result;
    for (const DiskEntry& entry : entries)
        if (which == nullptr || entry.*which) result.push_back(entry.name);
    std::sort(result.begin(), result.end());
    return result;
}

std::vector<std::string> names(const Disk& disk, const std::string& path) {
    return namesOf(listed(disk, path));
}

}  // namespace

TEST_F(HostTree, NothingOutsideAMountIsReachedOrWritten) {
    // A name that nobody else has on the host.
    const std::string fresh = "/tmp/" + std::filesystem::path(base).filename().string() + "-fresh";
    link("absolute", "/etc/hostname");
    link("climbing", "../secret");
    link("climbing-deep", "Work/../../../secret");
    link("outside", fresh);
    link("Users", base);
    ASSERT_EQ(disk.useAsStartupVolume(base + "/volume"), std::nullopt);
    ASSERT_EQ(disk.mount("/Users/ana/Mounted", base + "/volume"), std::nullopt);

    for (const char* path : {"/absolute", "/climbing", "/climbing-deep", "/../secret", "/Work/../../secret",
                             "/Users/secret", "/Users/volume/Work", "/Users/ana/../secret"}) {
        EXPECT_EQ(disk.kind(path), std::nullopt) << path;
        EXPECT_EQ(disk.read(path), std::nullopt) << path;
        EXPECT_FALSE(disk.makeFile(path, "overwritten")) << path;
        EXPECT_FALSE(disk.makeFolder(std::string(path) + "/more")) << path;
    }
    EXPECT_EQ(names(disk, "/Users"), std::vector<std::string>{"ana"});
    std::string secret;
    std::ifstream(base + "/secret") >> secret;
    EXPECT_EQ(secret, "secret");

    // A link's absolute target is a Mac path, here one of the Mac's own scratch folder.
    EXPECT_TRUE(disk.makeFile("/outside", "kept on the scratch folder"));
    EXPECT_EQ(disk.read(fresh), "kept on the scratch folder");
    EXPECT_FALSE(std::filesystem::exists(fresh));

    for (const char* path : {"/Work/new", "/new/folder", "/Work/notes.txt"}) {
        EXPECT_FALSE(disk.makeFile(path, "x")) << path;
        EXPECT_FALSE(disk.makeFolder(path)) << path;
        EXPECT_FALSE(disk.isWritable(path)) << path;
    }
    EXPECT_FALSE(disk.remove("/Work"));
    EXPECT_FALSE(disk.move("/Work/notes.txt", "/tmp/notes.txt"));
    EXPECT_TRUE(disk.copy("/Work", "/tmp/Work"));
    EXPECT_EQ(disk.read("/tmp/Work/notes.txt"), "notes");
    EXPECT_FALSE(disk.copy("/Work", "/tmp/Work"));
    EXPECT_EQ(disk.read("/Work/notes.txt"), "notes");
}

TEST_F(HostTree, ScratchFoldersAndMountsLieOverWhateverTheVolumeHas) {
    std::filesystem::create_directories(base + "/volume/tmp/from host");
    std::filesystem::create_directories(base + "/other/Annual");
    ASSERT_EQ(disk.useAsStartupVolume(base + "/volume"), std::nullopt);
    ASSERT_EQ(disk.mount("/Volumes/Data/", base + "/other"), std::nullopt);

    EXPECT_EQ(names(disk, "/"), (std::vector<std::string>{"Applications", "System", "Volumes", "Work", "tmp"}));
    EXPECT_EQ(names(disk, "/tmp"), std::vector<std::string>{});
    EXPECT_EQ(names(disk, "/Volumes"), std::vector<std::string>{"Data"});
    EXPECT_EQ(names(disk, "/Volumes/Data"), std::vector<std::string>{"Annual"});
    EXPECT_EQ(disk.hostPath("/Volumes"), std::nullopt);
    EXPECT_EQ(disk.hostPath("/Work"), base + "/volume/Work");
    EXPECT_EQ(disk.kind("/Applications/Orvane.app/Contents/Info.plist"), FileKind::file);
    EXPECT_FALSE(disk.remove("/tmp"));
    EXPECT_FALSE(disk.remove("/Volumes"));
    EXPECT_TRUE(disk.mount("/Volumes/None", base + "/missing").has_value());
    EXPECT_TRUE(disk.mount("relative", base).has_value());
    EXPECT_TRUE(disk.mount("/", base).has_value());
}

TEST_F(HostTree, OnlyTextIsListedAndDevicesAreNotWaitedFor) {
    std::ofstream(base + "/volume/Work/broken \xff name") << "x";
    ::mkfifo((base + "/volume/Work/pipe").c_str(), 0600);
    ASSERT_EQ(disk.useAsStartupVolume(base + "/volume"), std::nullopt);
    EXPECT_EQ(names(disk, "/Work"), (std::vector<std::string>{"Deep", "notes.txt", "pipe"}));
    EXPECT_EQ(disk.read("/Work/pipe"), std::nullopt);
    EXPECT_EQ(disk.kind(std::string("/Work\0/x", 8)), std::nullopt);
}

TEST(Disk, LinksAreFollowedButListedAsThemselvesAndCyclesEnd) {
    Disk disk;
    disk.makeFolder("/tmp/real/inner");
    disk.makeSymbolicLink("/tmp/to folder", "real");
    disk.makeSymbolicLink("/tmp/loop", "loop");
    disk.makeSymbolicLink("/tmp/ping", "pong");
    disk.makeSymbolicLink("/tmp/pong", "/tmp/ping");
    disk.makeSymbolicLink("/tmp/dangling", "nowhere");

    const std::pair<const char*, std::optional<FileKind>> cases[] = {
        {"/tmp/to folder", FileKind::directory},
        {"/tmp/to folder/inner/", FileKind::directory},
        {"/tmp/to folder/../real/./inner", FileKind::directory},
        {"/Volumes/Macintosh HD/Volumes/Macintosh HD/tmp/real", FileKind::directory},
        {"/Users/ana/Documents/Latest Invoices/Invoice 10.pdf", FileKind::file},
        {"/Users/ana/Documents/100% done.txt/", FileKind::file},
        {"/Users/ana/Documents/100% done.txt/more", std::nullopt},
        {"/nowhere/../tmp", std::nullopt},
        {"/tmp/loop", std::nullopt},
        {"/tmp/ping/x", std::nullopt},
        {"/tmp/dangling", std::nullopt},
        {"tmp", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [path, kind] : cases) EXPECT_EQ(disk.kind(path), kind) << path;
    EXPECT_TRUE(disk.exists("/tmp/loop"));
    EXPECT_TRUE(disk.exists("/tmp/dangling"));
    EXPECT_EQ(namesOf(listed(disk, "/tmp"), &DiskEntry::isDirectory), std::vector<std::string>{"real"});

    EXPECT_TRUE(disk.remove("/tmp/to folder"));
    EXPECT_EQ(disk.kind("/tmp/real/inner"), FileKind::directory);
}

TEST(Disk, KeepsEveryNameByteForByte) {
    Disk disk;
    const std::string longName(255, 'n');
    std::string deep = "/tmp";
    for (int level = 0; level < 12; ++level) deep += "/" + std::string(200, static_cast<char>('a' + level));
    const std::string hostile[] = {"/tmp/a\nb",
                                   "/tmp/trailing blank ",
                                   "/tmp/'\"\\$(x)`",
                                   "/tmp/cafe\u0301",
                                   "/tmp/caf\u00e9",
                                   "/tmp/\u202egpj.exe",
                                   "/tmp/a:b",
                                   "/tmp/\x01\x1e\x1f",
                                   "/tmp/-rf",
                                   "/tmp/👩‍👩‍👧",
                                   "/tmp/...",
                                   "/tmp/" + longName,
                                   deep};
    for (const std::string& path : hostile) {
        EXPECT_TRUE(disk.makeFolder(path + "/x")) << path;
        EXPECT_EQ(names(disk, path), std::vector<std::string>{"x"}) << path;
    }
    EXPECT_EQ(disk.list("/tmp")->size(), std::size(hostile));
    EXPECT_FALSE(disk.makeFolder("/tmp/" + longName + "n"));
}

TEST(Disk, TellsPackagesHiddenAndUnreadableFolders) {
    Disk disk;
    for (const char* name : {"Notes.rtfd", "Up.APP", ".app", "app", "x.txt", ".hidden"})
        disk.makeFolder(std::string("/tmp/") + name);
    disk.makeFile("/tmp/flat.bundle", "");
    EXPECT_EQ(namesOf(listed(disk, "/tmp"), &DiskEntry::isPackage), (std::vector<std::string>{"Notes.rtfd", "Up.APP"}));
    EXPECT_EQ(namesOf(listed(disk, "/tmp"), &DiskEntry::isHidden), (std::vector<std::string>{".app", ".hidden"}));

    disk.setUnreadable("/Volumes/Macintosh HD/tmp/app");
    EXPECT_FALSE(disk.list("/tmp/app"));
    EXPECT_EQ(disk.kind("/tmp/app"), FileKind::directory);
    EXPECT_FALSE(disk.list("/tmp/flat.bundle"));
}

TEST(Disk, ASampleVolumeIsTheSameOnEveryDayAndGoesWithItsMachine) {
    std::string host;
    {
        Disk disk;
        host = *disk.hostPath("/Users/ana");
        const auto attributes = disk.attributes("/Users/ana/Documents/Invoices/2024/Invoice 2.pdf");
        ASSERT_TRUE(attributes);
        EXPECT_EQ(attributes->size, 5u);
        EXPECT_EQ(platform::inSeconds(attributes->modified.sinceEpoch), 1717243200.0);
        disk.remove("/Users/ana/Documents/Invoices");
        EXPECT_EQ(platform::inSeconds(disk.attributes("/Users/ana/Documents")->modified.sinceEpoch), 1717243200.0);
        EXPECT_EQ(names(disk, "/Users/ana/Movies"), std::vector<std::string>{});
    }
    EXPECT_FALSE(std::filesystem::exists(host));
}

}  // namespace desk
