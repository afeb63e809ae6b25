#include <gtest/gtest.h>

#include "tests/tracking/ObservedFinder.h"

namespace brindle {
namespace {

using platform::CGRectMake;

TEST(FinderObserverRefresh, AWindowAppearsWithItsFirstAnswer) {
    ObservedFinder f(2);
    f.fake.selection = "/Data/Reports/a.txt";
    f.observer->refresh(true);
    EXPECT_TRUE(f.observer->windows->empty());
    f.fake.advance({});
    const std::vector<FinderWindowState> expected{
        {"finder-1", 1, 0, "/Data/Reports/", "Reports", "/Data/Reports/a.txt", CGRectMake(100, 200, 800, 500), true,
         false},
        {"finder-2", 2, 1, "/Data/Archive/", "Archive", std::nullopt, CGRectMake(110, 200, 800, 500), false, false}};
    EXPECT_EQ(*f.observer->windows, expected);
    EXPECT_EQ(*f.observer->activeWindow, expected[0]);
    EXPECT_TRUE(*f.observer->finderIsFrontmost);
    EXPECT_EQ(*f.observer->frontmostApplicationBundleIdentifier, "com.apple.finder");
    EXPECT_NE(f.log().find("] trusted=true tracked=2 paths=0 merged=0 cache=0 front=true\n"), std::string::npos);
    EXPECT_NE(f.log().find("] trusted=true tracked=2 paths=2 merged=2 cache=2 front=true\n"), std::string::npos);
}

TEST(FinderObserverRefresh, APassWithoutNewsPublishesAndLogsNothing) {
    ObservedFinder f(2);
    int activity = 0;
    f.observer->onFinderActivity = [&] { activity += 1; };
    f.settle();
    const std::string log = f.log();
    f.settle();
    EXPECT_EQ(f.windowPublications, 1);
    EXPECT_EQ(f.activePublications, 1);
    EXPECT_EQ(activity, 2);
    EXPECT_EQ(f.log(), log);
}

TEST(FinderObserverRefresh, FetchesAreThrottledFromTheEndOfTheLastOne) {
    ObservedFinder f;
    f.fake.servesQueues = false;
    f.observer->refresh(true);
    f.fake.advance(3s);
    f.observer->refresh(true);
    f.fake.window(1).title = "Renamed";
    f.observer->refresh(true);
    EXPECT_EQ(f.fetches(), 1);
    f.fake.serveQueue("com.velmora.Brindle.paths");
    f.observer->refresh(true);
    f.fake.advance(199'999'999ns);
    f.observer->refresh(true);
    EXPECT_EQ(f.fetches(), 1);
    f.fake.advance(1ns);
    f.observer->refresh(false);
    EXPECT_EQ(f.fetches(), 1);
    f.observer->refresh(true);
    EXPECT_EQ(f.fetches(), 2);
}

TEST(FinderObserverRefresh, AChangeOfTitlesOrMembersFetchesAtOnce) {
    ObservedFinder f(3);
    f.settle();
    f.fake.window(2).title = "Else";
    f.settle();
    EXPECT_EQ(f.fetches(), 2);
    f.fake.finderWindows.erase(f.fake.finderWindows.begin() + 1);
    f.settle();
    EXPECT_EQ(f.fetches(), 3);
    std::swap(f.fake.finderWindows[0], f.fake.finderWindows[1]);
    f.settle();
    EXPECT_EQ(f.fetches(), 3);
    f.fake.finderWindows.clear();
    f.settle();
    EXPECT_EQ(f.fetches(), 3);
    EXPECT_EQ(*f.observer->activeWindow, std::nullopt);
}

TEST(FinderObserverRefresh, AnAnswerCountsAgainstTheWindowsOfItsArrival) {
    ObservedFinder f(2);
    f.fake.servesQueues = false;
    f.observer->refresh(true);
    f.fake.answerScript = [](const std::string&) {
        return platform::NSAppleScriptResult{"1\x1F/Data/Old/\x1FOld\x1F\x1F"
                                             "1\x1E"
                                             "2\x1F/Data/Gone/\x1FGone\x1F\x1F"
                                             "0\x1E",
                                             std::nullopt};
    };
    f.fake.finderWindows.pop_back();
    f.observer->refresh(true);
    f.fake.serveQueue("com.velmora.Brindle.paths");
    EXPECT_EQ(f.shown(), Texts{"/Data/Old/"});
    EXPECT_NE(f.log().find("paths=1 merged=1"), std::string::npos);
    f.fake.answerScript = nullptr;
    f.fake.advance(200ms);
    f.observer->refresh(true);
    f.fake.serveQueue("com.velmora.Brindle.paths");
    EXPECT_EQ(f.shown(), Texts{"/Data/Reports/"});
}

TEST(FinderObserverRefresh, AFailedFetchKeepsWhatIsKnown) {
    ObservedFinder f(2);
    f.settle();
    f.fake.answerScript = [](const std::string&) {
        return platform::NSAppleScriptResult{std::nullopt, platform::Dictionary{}};
    };
    f.fake.advance(1s);
    f.add(3, "New");
    f.settle();
    EXPECT_EQ(f.fetches(), 2);
    EXPECT_EQ(f.shown(), (Texts{"/Data/Reports/", "/Data/Archive/"}));
}

TEST(FinderObserverRefresh, SelectionsOfWindowsThatWereNotAskedSurviveOnlyInTheSameFolder) {
    ObservedFinder f(2);
    f.fake.selection = "/Data/Reports/a";
    f.settle();
    std::swap(f.fake.finderWindows[0], f.fake.finderWindows[1]);
    f.fake.selection.reset();
    f.fake.advance(1s);
    f.settle();
    EXPECT_EQ(f.shown(), (Texts{"/Data/Archive/", "/Data/Reports/*/Data/Reports/a"}));
    f.fake.window(1).path = "/Data/Other/";
    f.fake.advance(1s);
    f.settle();
    EXPECT_EQ(f.shown(), (Texts{"/Data/Archive/", "/Data/Other/"}));
}

TEST(FinderObserverRefresh, AnEmptyPathReplacesAKnownOne) {
    ObservedFinder f;
    f.settle();
    f.fake.window(1).path.clear();
    f.fake.advance(1s);
    f.settle();
    EXPECT_EQ(f.shown(), Texts{""});
    EXPECT_EQ(f.observer->activeWindow->value().folderName(), "Reports");
}

TEST(FinderObserverRefresh, AWindowReturnsFromTheCacheOnlyUnderAKnownTitle) {
    struct {
        const char* title;
        bool returns;
    } const rows[] = {{"Reports", true}, {"", true}, {"Berichte", true}, {"Archive", false}};
    for (const auto& row : rows) {
        ObservedFinder f(2);
        f.fake.window(1).path = "/Data/Berichte/";
        f.settle();
        f.fake.window(1).isOnScreen = false;
        f.settle();
        EXPECT_EQ(f.shown(), Texts{"/Data/Archive/"});
        f.fake.window(1).isOnScreen = true;
        f.fake.window(1).title = row.title;
        f.fake.servesQueues = false;
        f.observer->refresh(true);
        // The snapshot that a stale entry takes with it still serves the pass that forgets it.
        EXPECT_EQ(f.shown().front(), "/Data/Berichte/") << row.title;
        EXPECT_EQ(f.log().find("paths=1 merged=2") != std::string::npos, !row.returns) << row.title;
    }
}

TEST(FinderObserverRefresh, LostPermissionEmptiesTheListAndKeepsTheCaches) {
    ObservedFinder f(2);
    f.settle();
    const auto before = *f.observer->windows;
    const std::string log = f.log();
    f.fake.isTrusted = false;
    f.fake.frontmost = "com.apple.mail";
    f.fake.advance(1s);
    f.settle();
    EXPECT_TRUE(f.observer->windows->empty());
    EXPECT_EQ(*f.observer->activeWindow, std::nullopt);
    EXPECT_FALSE(*f.observer->finderIsFrontmost);
    EXPECT_EQ(f.fetches(), 1);
    EXPECT_EQ(f.log(), log);
    f.fake.isTrusted = true;
    f.fake.servesQueues = false;
    f.observer->refresh(true);
    EXPECT_EQ(*f.observer->windows, before);
}

TEST(FinderObserverRefresh, AnUnknownFrontWindowLeavesTheNextOneActive) {
    ObservedFinder f(1);
    f.settle();
    f.fake.servesQueues = false;
    f.add(2, "New");
    std::swap(f.fake.finderWindows[0], f.fake.finderWindows[1]);
    f.observer->refresh(true);
    EXPECT_EQ(f.observer->activeWindow->value().id, "finder-1");
    EXPECT_FALSE(f.observer->activeWindow->value().isActive);
}

TEST(FinderObserverRefresh, TheCacheKeeps128WindowsAndForgetsTheFurthestBackOfTheOldest) {
    ObservedFinder f(128);
    f.settle();
    f.fake.advance(1s);
    f.fake.finderWindows.clear();
    f.add(200, "Late");
    f.settle();
    EXPECT_NE(f.log().find("merged=1 cache=129"), std::string::npos);
    f.settle();
    EXPECT_NE(f.log().find("paths=128 merged=1 cache=128"), std::string::npos);
    f.fake.finderWindows.clear();
    f.add(127, ObservedFinder::nameOf(127));
    f.add(128, ObservedFinder::nameOf(128));
    f.fake.servesQueues = false;
    f.observer->refresh(true);
    EXPECT_EQ(f.shown(), Texts{"/Data/Folder 127/"});
}

TEST(FinderObserverRefresh, AnObserverThatIsGoneIsLeftAlone) {
    ObservedFinder f;
    f.fake.servesQueues = false;
    f.observer->start();
    f.subscriptions.clear();
    f.observer.reset();
    f.fake.serveQueue("com.velmora.Brindle.paths");
    f.fake.notify(platform::WorkspaceNotification::didActivateApplication);
    f.fake.advance(10s);
    EXPECT_EQ(f.fake.timerCount() + f.fake.monitorCount() + f.fake.workspaceObserverCount() +
                  f.fake.subscriptions.size(),
              0U);
}

}  // namespace
}  // namespace brindle
