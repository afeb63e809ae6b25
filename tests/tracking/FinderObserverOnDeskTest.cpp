#include <gtest/gtest.h>

#include <array>
#include <random>
#include <sstream>

#include "tests/kit/Desk.h"
#include "tracking/FinderObserver.h"

namespace brindle {
namespace {

using platform::CGRectMake;
using Texts = std::vector<std::string>;

// An application that does nothing but follow Finder.
class Follower final : public desk::Program, platform::NSApplicationDelegate {
public:
    explicit Follower(platform::Platform& platform)
        : observer(platform, std::make_shared<AccessibilityManager>(platform),
                   std::make_shared<FinderWindowTracker>(platform), std::make_shared<FinderPathProvider>(platform)) {}
    platform::NSApplicationDelegate& delegate() override { return *this; }
    void applicationWillFinishLaunching() override {}
    void applicationDidFinishLaunching() override { observer.start(); }
    platform::NSApplicationTerminateReply applicationShouldTerminate() override {
        return platform::NSApplicationTerminateReply::terminateNow;
    }
    FinderObserver observer;
};

std::string described(std::int64_t number, const std::string& path, const platform::CGRect& frame) {
    std::ostringstream text;
    text << number << " " << path << " " << frame.minX() << " " << frame.minY() << " " << frame.width() << " "
         << frame.height();
    return text.str();
}

struct FollowedDesk : kit::Desk {
    FinderObserver* observer = nullptr;

    void launch() {
        auto& copy = machine.applications.launch(desk::bundleAt(machine.disk, "/Applications/Orvane.app"),
                                                 [this](platform::Platform& platform) {
                                                     auto program = std::make_unique<Follower>(platform);
                                                     observer = &program->observer;
                                                     return program;
                                                 });
        application = &copy;
        machine.settle();
    }
    Texts published() const {
        Texts texts;
        for (const auto& state : *observer->windows)
            texts.push_back(described(state.windowNumber, state.path, state.frame));
        return texts;
    }
    // The folder windows on screen, as they really are.
    Texts real() {
        Texts texts;
        for (const auto* shown : machine.windows.onScreen()) {
            const auto* window = machine.finder.find(shown->number);
            if (window == nullptr || window->kind != desk::FinderWindowKind::folder) continue;
            const std::string path = window->target.value_or("");
            texts.push_back(described(shown->number, path.empty() || path == "/" ? path : path + "/", shown->frame));
        }
        return texts;
    }
    desk::LaunchedApplication* application = nullptr;
};

TEST(FollowedDesk, TwinsWithOneFrameAndOneTitleKeepTheirOwnPaths) {
    FollowedDesk d;
    d.tree({"/Users/ana/a/Same/", "/Users/ana/b/Same/"});
    d.machine.finder.open("/Users/ana/a/Same", CGRectMake(100, 100, 600, 400));
    d.machine.finder.open("/Users/ana/b/Same", CGRectMake(100, 100, 600, 400));
    d.launch();
    for (int turn = 0; turn < 3; ++turn) {
        EXPECT_EQ(d.published(), d.real());
        d.machine.finder.raise(turn % 2 == 0 ? 101 : 102);
        d.run(1);
    }
}

TEST(FollowedDesk, ASlowAnswerShowsOnlyTheWindowsThatItWasAskedAbout) {
    FollowedDesk d;
    d.tree({"/Users/ana/One/", "/Users/ana/Two/"});
    d.launch();
    d.machine.faults.scriptLatency = platform::seconds(3);
    d.machine.finder.open("/Users/ana/One");
    d.run(1);
    d.machine.finder.open("/Users/ana/Two");
    d.run(1.75);
    EXPECT_EQ(d.published().size(), 0U);
    d.run(0.5);
    EXPECT_EQ(d.published().size(), 1U);
    d.run(4);
    EXPECT_EQ(d.published(), d.real());
}

TEST(FollowedDesk, ADragIsFollowedPointByPoint) {
    FollowedDesk d;
    d.twoWindows();
    d.machine.finder.setFrame(102, CGRectMake(400, 100, 700, 400));
    d.launch();
    std::vector<platform::CGRect> frames;
    d.observer->onLiveGeometryChange = [&](const std::string&, const platform::CGRect& frame, bool) {
        frames.push_back(frame);
    };
    const auto passes = d.observer->counts().passes;
    int lagging = 0;
    d.press({700, 490});
    for (int step = 1; step <= 50; ++step) {
        d.dragTo({700.0 + 3 * step, 490.0 - step});
        d.run(1.0 / 60);
        if (frames.empty() || frames.back() != d.machine.windows.find(102)->frame) lagging += 1;
    }
    EXPECT_EQ(lagging, 0);
    EXPECT_EQ(d.observer->counts().passes, passes);
    d.release({850, 440});
    EXPECT_EQ(frames.back(), CGRectMake(550, 50, 700, 400));
    EXPECT_EQ(d.published(), d.real());
    EXPECT_EQ(d.observer->liveGeometryState(), FinderObserver::LiveGeometryState::idle);
}

TEST(FollowedDesk, FramesComeRightOnDisplaysInAnyArrangement) {
    const std::pair<const char*, std::vector<platform::CGRect>> rows[] = {
        {"left and below", {CGRectMake(0, 0, 1440, 900), CGRectMake(-1000, -500, 1000, 700)}},
        {"above", {CGRectMake(0, 0, 1440, 900), CGRectMake(200, 900, 1200, 1900)}},
        {"primary last", {CGRectMake(1440, -100, 1000, 2000), CGRectMake(0, 0, 1440, 900)}},
        {"none at the origin", {CGRectMake(10, 20, 1000, 800)}}};
    for (const auto& [what, frames] : rows) {
        FollowedDesk d;
        for (const auto& frame : frames) d.machine.displays.add({.frame = frame});
        d.tree({"/Users/ana/One/"});
        for (const auto& frame : frames)
            d.machine.finder.open("/Users/ana/One",
                                  CGRectMake(frame.minX() + 100.25, frame.minY() + 50.75, 500.5, 300.25));
        d.launch();
        d.run(1);
        EXPECT_EQ(d.published(), d.real()) << what;
        EXPECT_EQ(d.published().size(), frames.size()) << what;
    }
}

TEST(FollowedDesk, PermissionTakenAndGivenBackBringsTheWindowsBackWithTheirPaths) {
    FollowedDesk d;
    d.twoWindows();
    d.launch();
    const Texts before = d.published();
    d.machine.permissions.setAccessibility(false);
    d.run(3);
    EXPECT_EQ(d.published(), Texts{});
    d.machine.faults.scriptLatency = platform::seconds(60);
    d.machine.permissions.setAccessibility(true);
    d.run(3);
    EXPECT_EQ(d.published(), before);
}

// Whatever happens, and whichever notifications get lost, doubled or late: a poll later, what is published is what is on screen.
TEST(FollowedDesk, APollAfterAnyStoryThePublishedWindowsAreTheRealOnes) {
    const Texts folders{"/Users/ana/a/Same", "/Users/ana/b/Same", "/Users/ana/Other", "/"};
    for (unsigned seed = 1; seed <= 6; ++seed) {
        FollowedDesk d;
        d.tree({"/Users/ana/a/Same/", "/Users/ana/b/Same/", "/Users/ana/Other/"});
        d.machine.launchServices.startOtherProcess("com.apple.mail");
        d.launch();
        std::mt19937 random(seed);
        const auto upTo = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
        const auto folder = [&] { return folders[static_cast<std::size_t>(upTo(4))]; };
        const auto frame = [&] { return CGRectMake(upTo(800), upTo(300) + 0.25, 400 + upTo(300), 200 + upTo(300)); };
        const auto window = [&]() -> std::int64_t {
            const auto windows = d.machine.finder.windows();
            return windows.empty() ? 0
                                   : windows[static_cast<std::size_t>(upTo(static_cast<int>(windows.size())))]->number;
        };
        const std::pair<const char*, std::function<void()>> deeds[] = {
            {"open", [&] { d.machine.finder.open(folder(), frame()); }},
            {"open", [&] { d.machine.finder.open(folder(), frame()); }},
            {"open", [&] { d.machine.finder.open(folder(), frame()); }},
            {"open", [&] { d.machine.finder.open(folder(), frame()); }},
            {"open", [&] { d.machine.finder.open(folder(), frame()); }},
            {"virtual", [&] { d.machine.finder.openVirtual("Recents", frame()); }},
            {"info", [&] { d.machine.finder.openInfoPanel(folder()); }},
            {"close", [&] { d.machine.finder.close(window()); }},
            {"minimize", [&] { d.machine.finder.minimize(window()); }},
            {"restore", [&] { d.machine.finder.restore(window()); }},
            {"raise", [&] { d.machine.finder.raise(window()); }},
            {"go", [&] { d.machine.finder.go(window(), folder()); }},
            {"move", [&] { d.machine.finder.setFrame(window(), frame()); }},
            {"full screen", [&] { d.machine.finder.setFullScreen(window(), upTo(2) == 0); }},
            {"space", [&] { d.machine.windows.switchToSpace(1 + upTo(2)); }},
            {"mail", [&] { d.machine.activation.activate("com.apple.mail"); }},
            {"finder", [&] { d.machine.activation.activate("com.apple.finder"); }},
            {"relaunch", [&] {
                 if (upTo(4) != 0) return;
                 d.machine.finder.quit();
                 d.run(0.3);
                 d.machine.finder.launch();
             }}};
        const std::array faults{desk::NotificationFault::deliver, desk::NotificationFault::drop,
                                desk::NotificationFault::doubled, desk::NotificationFault::late};
        d.machine.faults.notificationDelay = platform::seconds(0.4);
        std::string story;
        for (int deed = 1; deed <= 120; ++deed) {
            const auto& [name, act] = deeds[static_cast<std::size_t>(upTo(18))];
            d.machine.faults.notifications = faults[static_cast<std::size_t>(upTo(4))];
            story += std::string(" ") + name;
            act();
            d.run(upTo(7) / 10.0);
            if (deed % 8 != 0) continue;
            d.run(4);
            ASSERT_EQ(d.published(), d.real()) << "seed " << seed << story;
            story.clear();
        }
    }
}

}  // namespace
}  // namespace brindle
