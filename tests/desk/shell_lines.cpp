// Shell lines do their work on the desk's disk and nothing to the host.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "desk/disk/Disk.h"
#include "desk/shell/Shell.h"

namespace desk {

namespace {

class ShellLines : public ::testing::Test {
protected:
    ShellResult run(const std::string& line) {
        return Shell(disk, [this](platform::Duration duration) { slept += duration; }).run(line);
    }

    Disk disk;
    platform::Duration slept{0};
};

}  // namespace

TEST_F(ShellLines, AreRealShell) {
    const std::tuple<const char*, const char*, int> cases[] = {
        {"echo one; echo two", "one\ntwo\n", 0},
        {"x='a  b'; echo \"$x\" | { read y; echo \"<$y>\"; }", "<a  b>\n", 0},
        {"for i in 1 2 3; do echo -n $i; done; exit 3", "123", 3},
        {"echo shown 2>/dev/null; echo hidden >/dev/null 2>&1; echo gone &>/dev/null", "shown\n", 0},
        {"echo \">/dev/null\" '>/dev/null' \\>/dev/null", ">/dev/null >/dev/null >/dev/null\n", 0},
        {"/bin/cat '/Volumes/Data/Reports/Summary.txt' && echo \"$(ls /Volumes/Data/Reports)\"",
         "All is well.\nAnnual\nMonthly\nSummary.txt\n", 0},
        {"echo \"$HOME\"", "/Users/ana\n", 0},
        {"no-such-tool", "", 127},
        {"if then", "", 2},
    };
    for (const auto& [line, output, status] : cases) {
        const ShellResult result = run(line);
        EXPECT_EQ(result.output, output) << line << "\n" << result.errors;
        EXPECT_EQ(result.status, status) << line << "\n" << result.errors;
    }
}

TEST_F(ShellLines, ReplaceAnApplicationOnTheDesksDiskOnly) {
    disk.makeFile("/Users/ana/It's new/Orvane.app/Contents/new", "new");
    const ShellResult result = run("/bin/rm -rf '/Applications/.staged' && /usr/bin/ditto '/Users/ana/It'\\''s "
                                   "new/Orvane.app' '/Applications/.staged' && "
                                   "/bin/rm -rf '/Applications/Safari.app' && /bin/mv '/Applications/.staged' "
                                   "'/Applications/Safari.app'; /bin/sleep 0.5");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(disk.read("/Applications/Safari.app/Contents/new"), "new");
    EXPECT_FALSE(disk.exists("/Applications/Safari.app/Contents/Info.plist"));
    EXPECT_FALSE(disk.exists("/Applications/.staged"));
    EXPECT_EQ(slept, platform::seconds(0.5));
}

TEST_F(ShellLines, FailAsTheToolsDo) {
    const std::pair<const char*, const char*> cases[] = {
        {"/bin/rm /nowhere", "rm: /nowhere: No such file or directory\n"},
        {"/bin/rm /Users/ana", "rm: /Users/ana: is a directory\n"},
        {"/bin/mkdir /Users/ana/x/y", "mkdir: /Users/ana/x/y: No such file or directory\n"},
        {"/bin/cp /Volumes/Data /tmp", "cp: /Volumes/Data is a directory (not copied).\n"},
        {"/bin/rm -rf /System", "rm: /System: Operation not permitted\n"},
    };
    for (const auto& [line, errors] : cases) {
        const ShellResult result = run(line);
        EXPECT_EQ(result.status, 1) << line;
        EXPECT_EQ(result.errors, errors) << line;
    }
}

TEST_F(ShellLines, NeverReachTheHost) {
    std::string name = std::filesystem::temp_directory_path() / "shell-test-XXXXXX";
    const std::string host = ::mkdtemp(name.data());
    std::ofstream(host + "/kept") << "kept";
    const std::string lines[] = {
        "/bin/rm -rf " + host,
        "rm -rf " + host,
        "/usr/bin/env rm -rf " + host,
        "command -p rm -rf " + host,
        "exec /bin/rm -rf " + host,
        "PATH=/bin:/usr/bin; unset -f rm; rm -rf " + host,
        "unset -f rm; f() { local PATH=/bin; rm -rf " + host + "; }; f; PATH=/bin rm -rf " + host,
        "unset -f /bin/rm; /bin/rm -rf " + host,
        "set +r; echo x > " + host + "/kept",
        "echo x > " + host + "/kept",
        "echo x >> " + host + "/kept",
        "> " + host + "/kept",
        "eval 'echo x >| " + host + "/kept'",
        "bash -c 'echo x > " + host + "/kept'; /bin/sh -c 'echo x > " + host + "/kept'",
        "(set -o history; builtin history -w " + host + "/kept)",
        "HISTFILE=" + host + "/kept; set -o history; echo x",
        "exec 3<>" + host + "/kept; echo x >&3",
        "echo x &> " + host + "/kept",
        "enable kill; kill -9 $PPID; builtin kill -9 $PPID",
        "cd " + host + " && echo x > kept",
        "echo x > escaped; /usr/bin/touch escaped",
    };
    for (const std::string& line : lines) {
        run(line);
        std::string kept;
        std::ifstream(host + "/kept") >> kept;
        EXPECT_EQ(kept, "kept") << line;
    }
    std::filesystem::remove_all(host);
    EXPECT_FALSE(std::filesystem::exists("escaped"));
}

}  // namespace desk
