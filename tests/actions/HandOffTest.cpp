// The three services that hand a path to something outside Finder.
#include <gtest/gtest.h>

#include "actions/ClipboardService.h"
#include "actions/TerminalService.h"
#include "actions/VSCodeService.h"
#include "tests/actions/ActionsPlatform.h"

namespace brindle {
namespace {

using Opened = std::vector<std::pair<std::string, std::vector<std::string>>>;

TEST(ClipboardService, LeavesOnlyTheLastTextByteForByte) {
    kit::ActionsPlatform fake;
    ClipboardService service(fake.platform);
    service.copy("/Users/ana/first");
    service.copy("/Users/ana/cafe\u0301 100%\n'x'");
    EXPECT_EQ(fake.pasteboard, std::vector<std::string>{"/Users/ana/cafe\u0301 100%\n'x'"});
}

TEST(TerminalService, OpensAFolderAndNothingForNoPath) {
    kit::ActionsPlatform fake;
    TerminalService service(fake.platform);
    service.open("");
    EXPECT_TRUE(fake.opened.empty());
    service.open("/Users/ana/");
    EXPECT_EQ(fake.opened, (Opened{{"/System/Applications/Utilities/Terminal.app", {"/Users/ana/"}}}));
}

TEST(VSCodeService, PrefersTheCopyOfAllUsersAndSaysWhenThereIsNone) {
    const std::string shared = "/Applications/Visual Studio Code.app";
    const std::string own = "/Users/ana/Applications/Visual Studio Code.app";
    struct Case {
        std::vector<std::string> installed;
        Opened opened;
    };
    for (const Case& each : {Case{{}, {}}, Case{{own}, {{own, {"/a b"}}}}, Case{{shared, own}, {{shared, {"/a b"}}}}}) {
        kit::ActionsPlatform fake;
        for (const auto& path : each.installed) fake.disk[path] = platform::FileKind::directory;
        EXPECT_EQ(VSCodeService(fake.platform).open("/a b"), !each.installed.empty());
        EXPECT_EQ(fake.opened, each.opened);
    }
    kit::ActionsPlatform fake;
    fake.disk[shared] = platform::FileKind::directory;
    VSCodeService(fake.platform).open("");
    EXPECT_EQ(fake.opened, (Opened{{shared, {fake.platform.files.currentDirectoryPath()}}}));
}

}  // namespace
}  // namespace brindle
