#include "app/AppDelegate.h"

#include <gtest/gtest.h>

#include "tests/overlay/OverlayPlatform.h"

namespace brindle {
namespace {

using platform::NSApplicationTerminateReply;

class AppDelegateTest : public testing::Test {
protected:
    kit::OverlayPlatform mac;
    AppDelegate delegate{mac.platform};
};

TEST_F(AppDelegateTest, RunsAsAnAgentWithItsCoordinatorBeforeTheFirstPass) {
    mac.addFinderWindow(101, "/a/", platform::CGRectMake(100, 100, 800, 500));
    delegate.applicationWillFinishLaunching();
    EXPECT_EQ(mac.takeCalls(), std::vector<std::string>{"policy 1"});
    EXPECT_EQ(delegate.coordinator(), nullptr);

    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(delegate.finderObserver().counts().passes, 1);
    mac.fake.advance({});
    EXPECT_EQ(delegate.coordinator()->liveControllers().size(), 1u);
    EXPECT_EQ(delegate.applicationShouldTerminate(), NSApplicationTerminateReply::terminateCancel);
    const std::string& log = mac.fake.fileContents["/tmp/Orvane-debug.log"];
    EXPECT_LT(log.find("launch trusted=true\n"), log.find("trusted=true tracked=1"));
}

TEST_F(AppDelegateTest, QuitsBesideAnInstanceThatRunsAlready) {
    struct Case {
        const char* name;
        std::optional<std::string> ownIdentifier;
        std::vector<platform::NSRunningApplication> running;
        bool quits;
    };
    const std::string own = "com.velmora.Brindle";
    for (const Case& each : {
             Case{"alone", own, {{own, 9, nullptr}, {"com.apple.finder", 501, nullptr}}, false},
             Case{"second copy", own, {{own, 400, nullptr}, {own, 9, nullptr}}, true},
             Case{"no identifier", std::nullopt, {{std::nullopt, 400, nullptr}}, false},
             Case{"a stranger without identifier", own, {{std::nullopt, 400, nullptr}}, false},
         }) {
        kit::OverlayPlatform other;
        other.ownBundleIdentifier = each.ownIdentifier;
        other.others = each.running;
        AppDelegate newcomer(other.platform);
        newcomer.applicationDidFinishLaunching();
        EXPECT_EQ(other.takeCalls().size(), each.quits ? 1u : 0u) << each.name;
        EXPECT_EQ(newcomer.coordinator() == nullptr, each.quits) << each.name;
        EXPECT_EQ(newcomer.applicationShouldTerminate() == NSApplicationTerminateReply::terminateNow, each.quits);
        EXPECT_EQ(newcomer.finderObserver().counts().passes, each.quits ? 0 : 1) << each.name;
    }
}

}  // namespace
}  // namespace brindle
